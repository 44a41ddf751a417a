#include "Numbers/WrittenNumber.h"

#include "Numbers/CallingCodes.h"
#include "Numbers/NumberWords.h"

#include <QString>

#include <algorithm>

namespace PimManager::PhoneBook
{

namespace
{

// So many digits are a number even if a word follows. Fewer digits may be part of a description.
constexpr size_t s_kNumberSize = 5;
// So many digits can have an extension after a sign. The shortest numbers of a country are those of small islands.
constexpr size_t s_kShortNumberSize = 4;
// So many digits after `*67` are a number that the service is used for.
constexpr size_t s_kLongNumberSize = 7;

bool IsDigit( char16_t a_character )
{
    return a_character >= u'0' && a_character <= u'9';
}

bool IsAsciiLetter( char16_t a_character )
{
    return KeyOfLetter( a_character ) != '\0';
}

bool IsAscii( QStringView a_word )
{
    return std::all_of( a_word.begin(), a_word.end(),
                        []( QChar a_character ) { return IsAsciiLetter( a_character.unicode() ); } );
}

// The pauses of dialling programs.
bool IsPause( QStringView a_word )
{
    return a_word.size() == 1 && QStringView( u"pPwW" ).contains( a_word[0] );
}

bool IsInExtension( char16_t a_character )
{
    return a_character == u' ' || a_character == u'-' || a_character == u'.';
}

int HexValue( char16_t a_character )
{
    if ( IsDigit( a_character ) )
        return a_character - u'0';
    const char16_t letter = a_character | 0x20;
    return letter >= u'a' && letter <= u'f' ? letter - u'a' + 10 : -1;
}

// The fullwidth forms of the ASCII characters, and other signs that mean the same in a number.
char16_t PlainSign( char16_t a_character )
{
    constexpr char16_t s_kFirstFullwidth = 0xFF01;
    constexpr char16_t s_kLastFullwidth = 0xFF5E;
    constexpr char16_t s_kSmallPlus = 0xFE62;
    if ( a_character >= s_kFirstFullwidth && a_character <= s_kLastFullwidth )
        return static_cast<char16_t>( a_character - s_kFirstFullwidth + u'!' );
    return a_character == s_kSmallPlus ? u'+' : a_character;
}

/// The characters of a number, one at a time, in ASCII where there is an ASCII character that means the same.
class Characters
{
public:
    explicit Characters( QStringView a_text ) :
        m_text( a_text )
    {
        Decode();
    }

    bool IsEnd() const { return m_place >= m_text.size(); }
    /// `\0` at the end.
    char16_t Current() const { return m_current; }
    bool IsLetter() const
    {
        return m_current < 0x80 ? IsAsciiLetter( m_current ) : QChar::isLetter( m_text[m_place].unicode() );
    }
    void Step()
    {
        m_place += m_width;
        Decode();
    }
    /// Steps over ASCII digits and common punctuation and writes the digits, up to a number of characters.
    /// \return the number of digits.
    size_t TakeDigits( char* a_digits, size_t a_most );
    /// Steps over letters and returns them.
    QString TakeLetters()
    {
        QString letters;
        for ( ; !IsEnd() && IsLetter(); Step() )
            letters += QChar( m_current );
        return letters;
    }
    /// Steps to one of two signs or to the end and returns the text before it as written.
    QStringView TakeUpTo( char16_t a_sign, char16_t a_other )
    {
        const qsizetype begin = m_place;
        while ( !IsEnd() && m_current != a_sign && m_current != a_other )
            Step();
        return m_text.mid( begin, m_place - begin );
    }
    void SkipBlanks()
    {
        while ( m_current == u' ' )
            Step();
    }

private:
    void Decode()
    {
        constexpr char16_t s_kLastAscii = 0x7F;
        m_width = 1;
        m_current = IsEnd() ? u'\0' : m_text[m_place].unicode();
        if ( m_current > s_kLastAscii )
            DecodeOther();
        else if ( m_current == u'%' )
            DecodePercent();
    }
    void DecodeOther();
    void DecodePercent();

    QStringView m_text;
    qsizetype m_place = 0;
    qsizetype m_width = 1;
    char16_t m_current = u'\0';
};

// What most numbers consist of, without a decision for each character.
size_t Characters::TakeDigits( char* a_digits, size_t a_most )
{
    char* digit = a_digits;
    const QChar* character = m_text.begin() + m_place;
    const QChar* const end = character + std::min( m_text.size() - m_place, static_cast<qsizetype>( a_most ) );
    for ( ; character != end; ++character )
    {
        const char16_t code = character->unicode();
        if ( IsDigit( code ) )
            *digit++ = static_cast<char>( code );
        else if ( code != u' ' && code != u'-' && code != u')' && code != u'.' && code != u'/' )
            break;
    }
    m_place = character - m_text.begin();
    Decode();
    return static_cast<size_t>( digit - a_digits );
}

void Characters::DecodeOther()
{
    uint character = m_current;
    if ( QChar::isHighSurrogate( character ) && m_place + 1 < m_text.size() && m_text[m_place + 1].isLowSurrogate() )
    {
        character = QChar::surrogateToUcs4( m_current, m_text[m_place + 1].unicode() );
        m_width = 2;
    }
    m_current = QChar::isDigit( character ) ? static_cast<char16_t>( u'0' + QChar::digitValue( character ) )
                                            : PlainSign( m_current );
}

void Characters::DecodePercent()
{
    constexpr qsizetype s_kSize = 3;
    constexpr int s_kBase = 16;
    if ( m_text.size() - m_place < s_kSize )
        return;
    const int high = HexValue( m_text[m_place + 1].unicode() );
    const int low = HexValue( m_text[m_place + 2].unicode() );
    if ( high < 0 || low < 0 )
        return;
    m_current = static_cast<char16_t>( high * s_kBase + low );
    m_width = s_kSize;
}

class Reader
{
public:
    explicit Reader( QStringView a_text ) :
        m_characters( a_text )
    {
    }

    WrittenNumber Read();

private:
    bool HasNumber( size_t a_size = s_kNumberSize ) const { return m_number.m_digits.Size() >= a_size; }
    bool HasCode() const { return m_number.Is( WrittenNumber::Code ); }
    void AddDigit();
    void ReadSign();
    void ReadPlus();
    void ReadBracket();
    void ReadHash();
    void AddCode();
    void ReadWord();
    void AddLetters( const QString& a_word, size_t a_most );
    void ReadPause();
    void ReadSemicolon();
    void ReadParameters();
    void TakeExtension();
    void FinishCode();
    void FinishLong();

    Characters m_characters;
    WrittenNumber m_number;
    bool m_isDone = false;
};

WrittenNumber Reader::Read()
{
    while ( !m_isDone && !m_characters.IsEnd() )
    {
        m_number.m_digits.Grow( m_characters.TakeDigits( m_number.m_digits.End(), m_number.m_digits.Room() ) );
        if ( IsDigit( m_characters.Current() ) )
            AddDigit();
        else
            ReadSign();
    }
    if ( HasCode() )
        FinishCode();
    if ( m_number.m_digits.Size() > WrittenNumber::s_kMostDigits )
        FinishLong();
    if ( m_number.m_digits.IsEmpty() )
        m_number = WrittenNumber();
    return m_number;
}

void Reader::AddDigit()
{
    if ( m_number.m_digits.IsFull() )
        FinishLong();
    m_number.m_digits.Add( static_cast<char>( m_characters.Current() ) );
    m_characters.Step();
}

void Reader::FinishLong()
{
    m_number.m_digits.RemoveFirst( m_number.m_digits.Size() - WrittenNumber::s_kMostDigits );
    m_number.m_form |= WrittenNumber::TooLong;
}

void Reader::ReadSign()
{
    switch ( m_characters.Current() )
    {
    case u'+':
        ReadPlus();
        break;
    case u'(':
        ReadBracket();
        break;
    case u'*':
        AddCode();
        break;
    case u'#':
        ReadHash();
        break;
    case u',':
        ReadPause();
        break;
    case u';':
        ReadSemicolon();
        break;
    default:
        if ( m_characters.IsLetter() )
            ReadWord();
        else
            m_characters.Step();
    }
}

// A plus sign after a number begins another one.
void Reader::ReadPlus()
{
    if ( HasNumber() && !HasCode() )
        m_isDone = true;
    else if ( m_number.m_digits.IsEmpty() || HasCode() )
        m_number.m_form |= WrittenNumber::International;
    m_characters.Step();
}

std::string_view WithoutUsualPrefix( std::string_view a_digits )
{
    for ( const std::string_view prefix : { std::string_view( "011" ), std::string_view( "00" ) } )
    {
        if ( a_digits.substr( 0, prefix.size() ) == prefix )
            return a_digits.substr( prefix.size() );
    }
    return a_digits;
}

// After a calling code, a zero in brackets is dialled only within the country, except where numbers begin with it.
void Reader::ReadBracket()
{
    const std::string_view digits = WithoutUsualPrefix( m_number.m_digits.View() );
    const CallingCode* const code = CallingCodeOf( digits );
    m_characters.Step();
    if ( code == nullptr || code->Size() != digits.size() || code->Is( CallingCode::KeepsZero ) )
        return;
    Characters rest = m_characters;
    rest.SkipBlanks();
    if ( rest.Current() != u'0' )
        return;
    rest.Step();
    rest.SkipBlanks();
    if ( rest.Current() == u')' )
        m_characters = rest;
}

void Reader::AddCode()
{
    if ( m_number.m_digits.IsFull() )
        FinishLong();
    m_number.m_digits.Add( static_cast<char>( m_characters.Current() ) );
    m_number.m_form |= WrittenNumber::Code;
    m_characters.Step();
}

// `555 0100 #12` has an extension, `555 0100#` ends with the key that some people press after a number.
void Reader::ReadHash()
{
    if ( HasCode() || !HasNumber( s_kShortNumberSize ) )
        return AddCode();
    m_characters.Step();
    TakeExtension();
}

// A word ends a number, if it is none of the words that belong to numbers.
void Reader::ReadWord()
{
    const size_t letters = LettersAfter( m_number.m_digits.View() );
    const QString word = m_characters.TakeLetters();
    if ( m_number.m_digits.IsEmpty() )
        return;
    if ( IsPause( word ) || IsExtensionWord( word ) )
        TakeExtension();
    else if ( letters > 0 && IsAscii( word ) )
        AddLetters( word, letters );
    else
        m_isDone = HasNumber();
}

void Reader::AddLetters( const QString& a_word, size_t a_most )
{
    const size_t size = std::min( a_most, static_cast<size_t>( a_word.size() ) );
    for ( size_t place = 0; place < size; ++place )
        m_number.m_digits.Add( KeyOfLetter( a_word[static_cast<int>( place )].unicode() ) );
}

// What is dialled after a pause is for the other end, as an extension is.
void Reader::ReadPause()
{
    m_characters.Step();
    if ( HasNumber( s_kShortNumberSize ) )
        TakeExtension();
}

void Reader::ReadSemicolon()
{
    Characters rest = m_characters;
    rest.Step();
    if ( rest.IsLetter() )
        ReadParameters();
    else
        ReadPause();
}

// RFC 3966, section 3.
void Reader::ReadParameters()
{
    while ( m_characters.Current() == u';' )
    {
        m_characters.Step();
        const QStringView name = m_characters.TakeUpTo( u'=', u';' );
        if ( m_characters.Current() == u'=' )
            m_characters.Step();
        const QStringView value = m_characters.TakeUpTo( u';', u';' );
        if ( name.compare( QLatin1String( "ext" ), Qt::CaseInsensitive ) == 0 )
            SetExtension( m_number, value );
        else if ( name.compare( QLatin1String( "phone-context" ), Qt::CaseInsensitive ) == 0 )
            SetContext( m_number, value );
    }
    m_isDone = true;
}

/// Takes the next digits as the extension and ends the number.
void Reader::TakeExtension()
{
    ShortText<WrittenNumber::s_kMostExtensionDigits>& extension = m_number.m_extension;
    for ( ; !m_characters.IsEnd(); m_characters.Step() )
    {
        if ( IsDigit( m_characters.Current() ) )
            extension.Add( static_cast<char>( m_characters.Current() ) );
        else if ( !extension.IsEmpty() && !IsInExtension( m_characters.Current() ) )
            break;
    }
    m_isDone = true;
}

/// \return the size of the code before a number that it is dialled for, such as `*31#` or `*67`; 0 if there is none.
size_t SizeOfPrefixCode( std::string_view a_digits )
{
    constexpr size_t s_kShortSize = 3;
    constexpr size_t s_kMostSize = 6;
    const size_t last = a_digits.find_last_of( "*#" );
    if ( last == std::string_view::npos )
        return 0;
    const size_t rest = a_digits.size() - last - 1;
    if ( a_digits[last] == '#' && last > 0 && last < s_kMostSize && rest >= s_kNumberSize )
        return last + 1;
    return last == 0 && rest >= s_kLongNumberSize + s_kShortSize - 1 ? s_kShortSize : 0;
}

void Reader::FinishCode()
{
    const size_t size = SizeOfPrefixCode( m_number.m_digits.View() );
    m_number.m_digits.RemoveFirst( size );
    const uint dropped = size > 0 ? WrittenNumber::Code : WrittenNumber::International;
    m_number.m_form = static_cast<uchar>( m_number.m_form & ~dropped );
}

} // namespace

WrittenNumber ReadWrittenNumber( QStringView a_text )
{
    return Reader( a_text ).Read();
}

void SetExtension( WrittenNumber& a_number, QStringView a_text )
{
    if ( !a_number.m_extension.IsEmpty() )
        return;
    for ( Characters rest( a_text ); !rest.IsEnd(); rest.Step() )
    {
        if ( IsDigit( rest.Current() ) )
            a_number.m_extension.Add( static_cast<char>( rest.Current() ) );
    }
}

void SetContext( WrittenNumber& a_number, QStringView a_context )
{
    if ( !a_context.startsWith( QLatin1Char( '+' ) ) || a_number.m_form != WrittenNumber::Plain )
        return;
    WrittenNumber number = ReadWrittenNumber( a_context );
    if ( number.m_form != WrittenNumber::International || a_number.m_digits.IsEmpty() )
        return;
    number.m_digits.Add( a_number.Digits() );
    number.m_extension = a_number.m_extension;
    a_number = number;
}

} // namespace PimManager::PhoneBook
