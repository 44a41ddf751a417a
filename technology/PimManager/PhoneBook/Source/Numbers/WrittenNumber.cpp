#include "Numbers/WrittenNumber.h"

#include "Numbers/CallingCodes.h"
#include "Numbers/NumberCharacters.h"
#include "Numbers/NumberWords.h"

#include <QString>

#include <algorithm>

namespace PimManager::PhoneBook
{

namespace
{

// The fewest digits that are a number if a word follows them. Fewer digits may be part of a description.
constexpr size_t s_kNumberSize = 5;
// The fewest digits that can have an extension after a sign: the numbers of small islands are as short.
constexpr size_t s_kShortNumberSize = 4;
// The fewest digits after a code such as `*67` that are the number that it is dialled for.
constexpr size_t s_kLongNumberSize = 7;

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

    NumberCharacters m_characters;
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
    NumberCharacters rest = m_characters;
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
    NumberCharacters rest = m_characters;
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

WrittenNumber ReadWrittenNumber( const Contacts::PimContactPhone& a_phone )
{
    WrittenNumber number = ReadWrittenNumber( a_phone.Number() );
    SetContext( number, a_phone.Context() );
    SetExtension( number, a_phone.Extension() );
    return number;
}

void SetExtension( WrittenNumber& a_number, QStringView a_text )
{
    if ( !a_number.m_extension.IsEmpty() )
        return;
    for ( NumberCharacters rest( a_text ); !rest.IsEnd(); rest.Step() )
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
