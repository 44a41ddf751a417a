#include "Callers/CallerIndex.h"

#include "Numbers/DialledNumber.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

namespace
{

constexpr size_t s_kNumbersPerBucket = 4;

DialledNumber DialledOf( const NumberStore& a_numbers, int a_number, const Home& a_home )
{
    return { a_numbers.Digits( a_number ), a_numbers.Form( a_number ), a_home };
}

/// Adds a number. Of two numbers of a contact, the one with the better grade remains.
void AddCaller( QVector<PimPhoneBookCaller>& a_callers, const NumberStore& a_numbers, int a_number,
                PimPhoneBookGrade a_grade )
{
    if ( a_grade == PimPhoneBookGrade::None )
        return;
    const PimPhoneBookCaller caller{ a_numbers.ContactOf( a_number ), a_numbers.LineOf( a_number ), a_grade };
    if ( a_callers.isEmpty() || a_callers.last().m_contact != caller.m_contact )
        a_callers.append( caller );
    else if ( a_callers.last().m_grade < a_grade )
        a_callers.last() = caller;
}

bool IsBetter( const PimPhoneBookCaller& a_caller, const PimPhoneBookCaller& a_other )
{
    return a_caller.m_grade > a_other.m_grade;
}

uint BitsOf( quint32 a_number )
{
    uint bits = 0;
    while ( a_number >> bits != 0 )
        ++bits;
    return bits;
}

} // namespace

CallerIndex::CallerIndex( const NumberStore& a_numbers, const Home& a_home, int a_endingDigits ) :
    m_home( a_home ),
    m_endingDigits( static_cast<size_t>( a_endingDigits ) ),
    m_numberBits( BitsOf( static_cast<quint32>( a_numbers.Size() ) ) ),
    m_begins( static_cast<size_t>( a_numbers.Size() ) / s_kNumbersPerBucket + 2 ),
    m_numbers( static_cast<size_t>( a_numbers.Size() ) )
{
    // Counting sort: the numbers of each bucket are counted, then each is put into its bucket, beginning with the last.
    std::vector<quint32> hashes( m_numbers.size() );
    for ( size_t number = 0; number < hashes.size(); ++number )
    {
        hashes[number] = HashOf( DialledOf( a_numbers, static_cast<int>( number ), m_home ).Ending( m_endingDigits ) );
        ++m_begins[BucketOf( hashes[number] )];
    }
    quint32 end = 0;
    for ( quint32& begin : m_begins )
        begin = end += begin;
    for ( size_t number = hashes.size(); number > 0; --number )
    {
        const quint32 hash = hashes[number - 1];
        m_numbers[--m_begins[BucketOf( hash )]] = TagOf( hash ) | static_cast<quint32>( number - 1 );
    }
}

QVector<PimPhoneBookCaller> CallerIndex::Find( const NumberStore& a_numbers, const WrittenNumber& a_number ) const
{
    QVector<PimPhoneBookCaller> callers;
    if ( m_numbers.empty() || a_number.m_digits.IsEmpty() )
        return callers;
    const DialledNumber dialled( a_number, m_home );
    const quint32 hash = HashOf( dialled.Ending( m_endingDigits ) );
    const quint32 bucket = BucketOf( hash );
    for ( quint32 place = m_begins[bucket]; place < m_begins[bucket + 1]; ++place )
    {
        const quint32 entry = NumberOf( m_numbers[place] );
        if ( m_numbers[place] != ( TagOf( hash ) | entry ) )
            continue;
        const auto number = static_cast<int>( entry );
        AddCaller( callers, a_numbers, number, GradeWith( a_numbers, number, dialled, a_number.m_extension.View() ) );
    }
    if ( callers.size() > 1 )
        std::stable_sort( callers.begin(), callers.end(), IsBetter );
    return callers;
}

PimPhoneBookGrade CallerIndex::GradeWith( const NumberStore& a_numbers, int a_number, const DialledNumber& a_dialled,
                                          std::string_view a_extension ) const
{
    const PimPhoneBookGrade grade = GradeOf( a_dialled, DialledOf( a_numbers, a_number, m_home ), m_endingDigits );
    if ( a_extension.empty() && !a_numbers.HasExtension( a_number ) )
        return grade;
    return GradeWithExtensions( grade, a_extension, a_numbers.Extension( a_number ) );
}

quint32 CallerIndex::BucketOf( quint32 a_hash ) const
{
    const quint64 buckets = m_begins.size() - 1;
    return static_cast<quint32>( a_hash * buckets >> 32 );
}

} // namespace PimManager::PhoneBook
