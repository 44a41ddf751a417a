#include "Sorting/NameOrder.h"

#include "Search/LetterFolding.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace PimManager::PhoneBook
{

namespace
{

/// The first and the last letter of the alphabet of a script.
struct Ends
{
    QChar::Script m_script;
    char16_t m_first;
    char16_t m_last;
};

constexpr std::array s_kScripts = {
    Ends{ QChar::Script_Latin, u'a', u'z' },        Ends{ QChar::Script_Greek, 0x03B1, 0x03C9 },
    Ends{ QChar::Script_Cyrillic, 0x0430, 0x044F }, Ends{ QChar::Script_Armenian, 0x0561, 0x0586 },
    Ends{ QChar::Script_Hebrew, 0x05D0, 0x05EA },   Ends{ QChar::Script_Arabic, 0x0627, 0x064A },
};

struct Row
{
    char16_t m_last;
    char16_t m_label;
};

// The last hiragana of each row.
constexpr std::array s_kKanaRows = {
    Row{ 0x304A, 0x3042 }, Row{ 0x3054, 0x304B }, Row{ 0x305E, 0x3055 }, Row{ 0x3069, 0x305F }, Row{ 0x306E, 0x306A },
    Row{ 0x307D, 0x306F }, Row{ 0x3082, 0x307E }, Row{ 0x3088, 0x3084 }, Row{ 0x308D, 0x3089 }, Row{ 0x3096, 0x308F },
};

// The first consonants of Hangul syllables; doubled ones are in the section of the single one.
constexpr std::array s_kConsonants = { 0x3131, 0x3131, 0x3134, 0x3137, 0x3137, 0x3139, 0x3141, 0x3142, 0x3142, 0x3145,
                                       0x3145, 0x3147, 0x3148, 0x3148, 0x314A, 0x314B, 0x314C, 0x314D, 0x314E };

// A first character for each letter with which a syllable of Mandarin begins, in the order of pinyin.
struct Pinyin
{
    char16_t m_first;
    char m_letter;
};
constexpr std::array s_kPinyin = {
    Pinyin{ 0x963F, 'A' }, Pinyin{ 0x516B, 'B' }, Pinyin{ 0x5693, 'C' }, Pinyin{ 0x54D2, 'D' }, Pinyin{ 0x59B8, 'E' },
    Pinyin{ 0x53D1, 'F' }, Pinyin{ 0x65EE, 'G' }, Pinyin{ 0x54C8, 'H' }, Pinyin{ 0x8BA5, 'J' }, Pinyin{ 0x5494, 'K' },
    Pinyin{ 0x5783, 'L' }, Pinyin{ 0x75F3, 'M' }, Pinyin{ 0x62CF, 'N' }, Pinyin{ 0x5662, 'O' }, Pinyin{ 0x5991, 'P' },
    Pinyin{ 0x4E03, 'Q' }, Pinyin{ 0x5465, 'R' }, Pinyin{ 0x6268, 'S' }, Pinyin{ 0x5B83, 'T' }, Pinyin{ 0x7A75, 'W' },
    Pinyin{ 0x5915, 'X' }, Pinyin{ 0x4E2B, 'Y' }, Pinyin{ 0x5E00, 'Z' },
};

// Pairs of letters that are a letter in some alphabet.
constexpr std::array s_kPairs = { "aa", "ch", "cs", "dd", "dh", "dz", "ff", "gb", "gj", "gy", "kp", "ll", "lj", "ly",
                                  "ng", "nj", "ny", "ph", "rh", "rr", "sh", "sz", "th", "ty", "ue", "xh", "zh", "zs" };
constexpr size_t s_kAscii = 0x80;
constexpr char16_t s_kFirstMark = 0x300;
constexpr char32_t s_kFirstSyllable = 0xAC00;
constexpr char32_t s_kLastSyllable = 0xD7A3;
constexpr char32_t s_kSyllablesOfConsonant = 588;
constexpr char16_t s_kHanSection = 0x6F22;
// A letter after all that names have.
constexpr char16_t s_kClick = 0x0298;
constexpr char16_t s_kRingA = 0x00E5;
constexpr char16_t s_kDotlessI = 0x0131;
constexpr char16_t s_kCapitalDottedI = 0x0130;

char32_t FirstCharacter( const QString& a_text )
{
    return a_text.size() > 1 && a_text.at( 0 ).isHighSurrogate() && a_text.at( 1 ).isLowSurrogate()
               ? QChar::surrogateToUcs4( a_text.at( 0 ), a_text.at( 1 ) )
           : a_text.isEmpty() ? U'\0'
                              : char32_t( a_text.at( 0 ).unicode() );
}

int SizeOf( char32_t a_character )
{
    return QChar::requiresSurrogates( a_character ) ? 2 : 1;
}

bool IsLetter( char32_t a_character )
{
    return QChar::isLetter( a_character ) || QChar::category( a_character ) == QChar::Number_Letter;
}

bool IsAsciiLetter( QChar a_character )
{
    const char16_t lower = a_character.unicode() | 0x20U;
    return lower >= u'a' && lower <= u'z';
}

bool IsIgnored( char32_t a_character )
{
    return QChar::isMark( a_character ) || QChar::category( a_character ) == QChar::Other_Format;
}

/// \return the text from the first character on that is not invisible.
int FirstVisible( const QString& a_text )
{
    int place = 0;
    while ( place < a_text.size() && ( IsIgnored( a_text.at( place ).unicode() ) || a_text.at( place ).isSpace() ) )
        ++place;
    return place;
}

/// \return the first letters of a name: one with its marks, and the next one. Composed, in lower case.
QString FirstLetters( const QString& a_name )
{
    constexpr int s_kMost = 8;
    const QString text = a_name.mid( FirstVisible( a_name ), s_kMost ).normalized( QString::NormalizationForm_C );
    const int first = SizeOf( FirstCharacter( text ) );
    return text.left( first + SizeOf( FirstCharacter( text.mid( first ) ) ) );
}

QString TextOf( char32_t a_character )
{
    return QString::fromUcs4( &a_character, 1 );
}

/// \return the letter without marks.
QString PlainLetter( const QString& a_letter )
{
    LetterFolding folding;
    const QString plain = QString::fromStdString( folding.Of( FirstCharacter( a_letter ) ).m_plain );
    return plain.left( SizeOf( FirstCharacter( plain ) ) );
}

const Ends* ScriptOf( const QString& a_letter )
{
    const QChar::Script script = QChar::script( FirstCharacter( a_letter ) );
    const auto* const found = std::find_if( s_kScripts.begin(), s_kScripts.end(),
                                            [script]( const Ends& a_ends ) { return a_ends.m_script == script; } );
    return found == s_kScripts.end() ? nullptr : found;
}

QString SectionOfKana( char32_t a_hiragana )
{
    const auto* const row = std::find_if( s_kKanaRows.begin(), s_kKanaRows.end(),
                                          [a_hiragana]( const Row& a_row ) { return a_hiragana <= a_row.m_last; } );
    return QString( QChar( row == s_kKanaRows.end() ? s_kKanaRows.back().m_label : row->m_label ) );
}

bool IsHan( char32_t a_character )
{
    return QChar::script( a_character ) == QChar::Script_Han;
}

bool IsKana( char32_t a_character )
{
    const QChar::Script script = QChar::script( a_character );
    return script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
}

QString SectionOfHangul( char32_t a_character )
{
    if ( a_character < s_kFirstSyllable || a_character > s_kLastSyllable )
        return TextOf( a_character );
    return QString( QChar( s_kConsonants.at( ( a_character - s_kFirstSyllable ) / s_kSyllablesOfConsonant ) ) );
}

} // namespace

NameOrder::NameOrder( const QLocale& a_locale ) :
    m_locale( a_locale ),
    m_collator( a_locale ),
    m_labels( QStringLiteral( "#" ) ),
    m_sectionsOfAscii( s_kAscii * s_kAscii, -1 ),
    m_lastLatin( QStringLiteral( "z" ) )
{
    // Without a language, capitals would be before all small letters.
    if ( a_locale.language() == QLocale::C )
        m_collator.setCaseSensitivity( Qt::CaseInsensitive );
    for ( char16_t letter = u'a'; letter < u'z'; ++letter )
    {
        if ( Compare( QString( QChar( letter ) ), m_lastLatin ) > 0 )
            m_lastLatin = QChar( letter );
    }
    m_hasPinyin = HasPinyin();
    m_hasPairs = std::any_of( s_kPairs.begin(), s_kPairs.end(),
                              [this]( const char* a_pair )
                              { return IsPair( QLatin1String( a_pair ), QString( QLatin1Char( a_pair[0] ) ) ); } );
}

int NameOrder::Compare( const QString& a_first, const QString& a_second ) const
{
    return m_collator.compare( a_first, a_second );
}

// Most names begin with a plain letter, and most alphabets have no pairs.
int NameOrder::SectionOf( const QString& a_name )
{
    const bool isPlain = a_name.size() >= 3 && IsAsciiLetter( a_name.at( 0 ) ) &&
                         a_name.at( 1 ).unicode() < s_kFirstMark && a_name.at( 2 ).unicode() < s_kFirstMark;
    if ( !isPlain || ( m_hasPairs && a_name.at( 1 ).unicode() >= s_kAscii ) )
        return SectionOfLetters( FirstLetters( a_name ) );
    const size_t second = m_hasPairs ? a_name.at( 1 ).unicode() : 0;
    int& section = m_sectionsOfAscii[a_name.at( 0 ).unicode() * s_kAscii + second];
    if ( section < 0 )
        section = SectionOfLetters( a_name.left( 2 ) );
    return section;
}

int NameOrder::SectionOfLetters( const QString& a_letters )
{
    const auto known = m_sections.constFind( a_letters );
    if ( known != m_sections.constEnd() )
        return *known;
    const QString label = LabelOf( a_letters );
    auto section = static_cast<int>( m_labels.indexOf( label ) );
    if ( section < 0 )
    {
        section = static_cast<int>( m_labels.size() );
        m_labels.append( label );
    }
    m_sections.insert( a_letters, section );
    return section;
}

std::vector<int> NameOrder::SortedSections() const
{
    std::vector<int> sections( static_cast<size_t>( m_labels.size() ) );
    std::iota( sections.begin(), sections.end(), 0 );
    std::sort( sections.begin() + 1, sections.end(),
               [this]( int a_first, int a_second ) { return Compare( Label( a_first ), Label( a_second ) ) < 0; } );
    std::rotate( sections.begin(), sections.begin() + 1, sections.end() );
    return sections;
}

QString NameOrder::LabelOf( const QString& a_letters ) const
{
    const char32_t character = FirstCharacter( a_letters );
    if ( !IsLetter( character ) )
        return m_labels.constFirst();
    const QString letter = m_locale.toLower( TextOf( character ) );
    if ( IsHan( character ) )
        return SectionOfHan( letter );
    const QString plain = PlainLetter( letter );
    if ( IsKana( character ) && !plain.isEmpty() )
        return SectionOfKana( FirstCharacter( plain ) );
    if ( QChar::script( character ) == QChar::Script_Hangul )
        return SectionOfHangul( character );
    const QString letters = letter + m_locale.toLower( a_letters.mid( SizeOf( character ) ) );
    if ( m_hasPairs && IsPair( letters, letter ) )
    {
        const auto ring = QString( QChar( s_kRingA ) );
        return AreApart( letters, ring ) ? Capital( letter ) + letters.mid( letter.size() ) : Capital( ring );
    }
    return plain.isEmpty() || AreApart( letter, plain ) ? Capital( letter ) : Capital( plain );
}

// Every name with one letter is before or after every name with the other one.
bool NameOrder::AreApart( const QString& a_first, const QString& a_second ) const
{
    const Ends* const ends =
        ScriptOf( a_second.size() == 1 && a_second.at( 0 ) == QChar( s_kRingA ) ? QStringLiteral( "a" ) : a_second );
    if ( ends == nullptr || a_first == a_second )
        return false;
    const QString first( QChar( ends->m_first ) );
    const QString last = ends->m_first == u'a' ? m_lastLatin : QString( QChar( ends->m_last ) );
    return Compare( a_first + first, a_second + last ) > 0 || Compare( a_first + last, a_second + first ) < 0;
}

// A pair that is a letter is after all other words that begin with its first letter.
bool NameOrder::IsPair( const QString& a_letters, const QString& a_letter ) const
{
    const bool isLatin =
        a_letter.size() == 1 && a_letter.at( 0 ) >= QLatin1Char( 'a' ) && a_letter.at( 0 ) <= QLatin1Char( 'z' );
    if ( !isLatin || a_letters.size() == a_letter.size() )
        return false;
    const QChar second = a_letters.at( a_letter.size() );
    const bool isPlain = second >= QLatin1Char( 'a' ) && second <= QLatin1Char( 'z' );
    const bool isCroatian = m_locale.language() == QLocale::Croatian || m_locale.language() == QLocale::Bosnian;
    if ( !isPlain && !( isCroatian && a_letters == QString::fromUtf16( u"d\u017E" ) ) )
        return false;
    return Compare( a_letters + QLatin1Char( 'a' ), a_letter + QChar( s_kClick ) ) > 0;
}

bool NameOrder::HasPinyin() const
{
    for ( size_t i = 1; i < s_kPinyin.size(); ++i )
    {
        if ( Compare( QString( QChar( s_kPinyin[i - 1].m_first ) ), QString( QChar( s_kPinyin[i].m_first ) ) ) >= 0 )
            return false;
    }
    return true;
}

QString NameOrder::SectionOfHan( const QString& a_letter ) const
{
    if ( !m_hasPinyin )
        return QString( QChar( s_kHanSection ) );
    const auto* const next = std::find_if( s_kPinyin.begin() + 1, s_kPinyin.end(),
                                           [&]( const Pinyin& a_pinyin )
                                           { return Compare( a_letter, QString( QChar( a_pinyin.m_first ) ) ) < 0; } );
    return QString( QLatin1Char( ( next - 1 )->m_letter ) );
}

QString NameOrder::Capital( const QString& a_letter ) const
{
    const bool hasTwoKindsOfI = m_locale.language() == QLocale::Turkish || m_locale.language() == QLocale::Azerbaijani;
    if ( hasTwoKindsOfI && a_letter == QLatin1String( "i" ) )
        return QString( QChar( s_kCapitalDottedI ) );
    if ( a_letter == QString( QChar( s_kDotlessI ) ) )
        return QStringLiteral( "I" );
    return a_letter.toUpper();
}

} // namespace PimManager::PhoneBook
