#include "Contact/DateParser.h"

#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

namespace PimManager::Contacts
{

namespace
{

// More characters than any date with nanoseconds.
constexpr size_t s_kLongest = 64;

/// One function for each construct. Each reads it at the start of the rest of the text, and returns false if it is not
/// there.
class DateGrammar
{
public:
    explicit DateGrammar( std::string_view a_text ) :
        m_rest( a_text )
    {
    }

    bool DateOrTime()
    {
        if ( Skip( 'T' ) )
            return Time();
        return Date() && ( IsAtEnd() || ( Skip( 'T' ) && Time() ) || TimeAfterBlank() );
    }

    bool TimeOnly()
    {
        Skip( 'T' );
        return Time();
    }

    bool Offset()
    {
        if ( Skip( 'Z' ) )
        {
            m_fields.m_offset = 0;
            return true;
        }
        const bool isWest = Skip( '-' );
        return ( isWest || Skip( '+' ) ) && HoursOfOffset( isWest ? -1 : 1 );
    }

    bool IsAtEnd() const { return m_rest.empty(); }
    DateFields& Fields() { return m_fields; }

private:
    bool Date()
    {
        if ( Skip( '-' ) )
            return Skip( '-' ) && ( Skip( '-' ) ? Digits( 2, 2, m_fields.m_day ) : MonthAndDay() );
        if ( !DateWithYear() )
            return false;
        for ( std::optional<int>* const part : { &m_fields.m_year, &m_fields.m_month, &m_fields.m_day } )
            OpenIfZero( *part );
        return true;
    }

    bool DateWithYear()
    {
        if ( !Digits( 4, 4, m_fields.m_year ) )
            return false;
        if ( Skip( '/' ) )
            return Digits( 1, 2, m_fields.m_month ) && Skip( '/' ) && Digits( 1, 2, m_fields.m_day );
        if ( Skip( '-' ) )
            return Digits( 1, 2, m_fields.m_month ) &&
                   ( Skip( '-' ) ? Digits( 1, 2, m_fields.m_day ) : NextPart( '-', m_fields.m_day ) );
        if ( !IsAtDigit() )
            return true;
        // Six digits may be YYYYMM or YYMMDD, so the day is needed.
        return MonthAndDay() && m_fields.m_day;
    }

    bool MonthAndDay() { return Digits( 2, 2, m_fields.m_month ) && NextPart( '-', m_fields.m_day ); }

    bool Time() { return TimeOfDay() && ( IsAtEnd() || Offset() ); }

    bool TimeOfDay()
    {
        if ( Skip( '-' ) )
            return Skip( '-' ) ? Digits( 2, 2, m_fields.m_second ) : MinuteAndSecond();
        return Digits( 2, 2, m_fields.m_hour ) && NextPart( ':', m_fields.m_minute ) &&
               NextPart( ':', m_fields.m_second ) && ( !m_fields.m_second || Fraction() );
    }

    bool MinuteAndSecond() { return Digits( 2, 2, m_fields.m_minute ) && NextPart( ':', m_fields.m_second ); }

    bool TimeAfterBlank() { return Skip( ' ' ) && Time() && m_fields.m_minute; }

    bool Fraction()
    {
        if ( !Skip( '.' ) && !Skip( ',' ) )
            return true;
        const bool hasDigits = IsAtDigit();
        while ( IsAtDigit() )
            m_rest.remove_prefix( 1 );
        return hasDigits;
    }

    bool HoursOfOffset( int a_sign )
    {
        std::optional<int> hours;
        std::optional<int> minutes;
        if ( !Digits( 2, 2, hours ) || !NextPart( ':', minutes ) || *hours > 23 || minutes.value_or( 0 ) > 59 )
            return false;
        m_fields.m_offset = a_sign * ( *hours * 60 + minutes.value_or( 0 ) );
        return true;
    }

    /// Two digits, with the mark before them or without it; or neither, and the part remains unknown.
    bool NextPart( char a_mark, std::optional<int>& a_part )
    {
        const bool isThere = Skip( a_mark ) || IsAtDigit();
        return !isThere || Digits( 2, 2, a_part );
    }

    bool Digits( size_t a_least, size_t a_most, std::optional<int>& a_number )
    {
        size_t count = 0;
        int number = 0;
        for ( ; count < a_most && IsAtDigit(); ++count )
        {
            number = number * 10 + ( m_rest.front() - '0' );
            m_rest.remove_prefix( 1 );
        }
        a_number = number;
        return count >= a_least;
    }

    static void OpenIfZero( std::optional<int>& a_part )
    {
        if ( a_part == 0 )
            a_part.reset();
    }

    bool IsAtDigit() const { return !m_rest.empty() && IsDigit( m_rest.front() ); }

    /// \param a_mark a letter matches in either case.
    bool Skip( char a_mark )
    {
        const bool isThere = !m_rest.empty() && Upper( m_rest.front() ) == a_mark;
        if ( isThere )
            m_rest.remove_prefix( 1 );
        return isThere;
    }

    std::string_view m_rest;
    DateFields m_fields;
};

} // namespace

std::optional<DateFields> ReadDate( std::string_view a_text, DateHint a_hint, const std::optional<int>& a_omittedYear )
{
    const std::string_view text = WithoutOuterSpace( a_text );
    if ( text.size() > s_kLongest || a_hint == DateHint::Text )
        return std::nullopt;
    DateGrammar grammar( text );
    const bool isDate = a_hint == DateHint::Time ? grammar.TimeOnly() : grammar.DateOrTime();
    DateFields& fields = grammar.Fields();
    if ( fields.m_year == a_omittedYear )
        fields.m_year.reset();
    if ( !isDate || !grammar.IsAtEnd() || !fields.IsValid() )
        return std::nullopt;
    return fields;
}

std::optional<DateFields> ReadCallTime( std::string_view a_text )
{
    const std::optional<DateFields> fields = ReadDate( a_text );
    const bool isWhole = fields && fields->m_year && fields->m_month && fields->m_second;
    return isWhole && fields->m_offset.value_or( 0 ) == 0 ? fields : std::nullopt;
}

std::optional<int> ReadOffset( std::string_view a_text )
{
    const std::string_view text = WithoutOuterSpace( a_text );
    DateGrammar grammar( text );
    return grammar.Offset() && grammar.IsAtEnd() ? grammar.Fields().m_offset : std::nullopt;
}

} // namespace PimManager::Contacts
