#include <PimManager/PhoneBook/PimPhoneBook.h>

#include "Numbers/WrittenNumber.h"
#include "PhoneBookIndex.h"
#include "Search/SearchIndexBuilder.h"

#include <memory>
#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

// Most numbers begin with a digit or a "+".
bool IsUri( const QString& a_text )
{
    const QChar first = a_text.isEmpty() ? QChar() : a_text.at( 0 );
    const bool mayBe = first == QLatin1Char( 't' ) || first == QLatin1Char( 'T' ) || first.isSpace();
    return mayBe && a_text.trimmed().startsWith( QLatin1String( "tel:" ), Qt::CaseInsensitive );
}

/// The numbers of a card, in the order of its lines.
class CardNumbers
{
public:
    explicit CardNumbers( const Contacts::PimContactCard& a_card ) :
        m_card( a_card )
    {
    }

    WrittenNumber Read( const QString& a_text, int a_id )
    {
        return IsUri( a_text ) ? ReadUri( a_text, a_id ) : ReadWrittenNumber( a_text );
    }

private:
    // Few cards have URIs, so the fields are read at the first one.
    WrittenNumber ReadUri( const QString& a_text, int a_id )
    {
        if ( m_phones.isEmpty() )
            m_phones = Contacts::PimContact( m_card ).Phones();
        while ( m_next < m_phones.size() && m_phones.at( m_next ).Id() < a_id )
            ++m_next;
        const bool isFound = m_next < m_phones.size() && m_phones.at( m_next ).Id() == a_id;
        return isFound ? ReadWrittenNumber( m_phones.at( m_next ) ) : ReadWrittenNumber( a_text );
    }

    const Contacts::PimContactCard& m_card;
    Contacts::PimContactList<Contacts::PimContactPhone> m_phones;
    decltype( m_phones.size() ) m_next = 0;
};

// The lines of a card are read faster than the fields of a contact. The ids of its lines count from 1.
void AddCard( const Contacts::PimContactCard& a_card, int a_contact, NumberStore& a_numbers,
              SearchIndexBuilder& a_search )
{
    CardNumbers numbers( a_card );
    int id = 0;
    for ( const Contacts::PimContactLine& line : a_card )
    {
        ++id;
        if ( !line.IsNamed( QLatin1String( "TEL" ) ) )
        {
            a_search.AddLine( line );
            continue;
        }
        const WrittenNumber number = numbers.Read( line.Text(), id );
        a_numbers.Append( a_contact, id, number.Digits(), number.m_form, number.m_extension.View() );
    }
    a_search.EndCard( a_card );
}

Dialling DiallingOf( const Home& a_home )
{
    Dialling dialling;
    if ( a_home.m_code == nullptr )
        return dialling;
    dialling.m_code = std::to_string( a_home.m_code->m_code );
    dialling.m_prefixes.push_back( TrunkPrefixOf( *a_home.m_code ) );
    // There the prefix is often left out.
    constexpr int s_kNorthAmerica = 1;
    if ( a_home.m_code->m_code == s_kNorthAmerica && a_home.m_code->HasTrunkPrefix() )
        dialling.m_prefixes.emplace_back();
    return dialling;
}

} // namespace

PimPhoneBook::PimPhoneBook() :
    d( new PimPhoneBookPrivate )
{
}

PimPhoneBook::PimPhoneBook( const Contacts::PimContactBook& a_book, const PimPhoneBookOptions& a_options ) :
    d( new PimPhoneBookPrivate )
{
    d->m_book = a_book;
    d->m_options = a_options;
    const Home home = HomeOf( a_options.Region() );
    d->m_home = DiallingOf( home );
    const auto index = std::make_shared<PhoneBookIndex>();
    SearchIndexBuilder search( a_options );
    for ( int contact = 0; contact < a_book.Size(); ++contact )
        AddCard( a_book.CardAt( contact ), contact, index->m_numbers, search );
    index->m_numbers.Squeeze();
    index->m_callers = CallerIndex( index->m_numbers, home, a_options.EndingDigits() );
    search.Build( index->m_numbers, index->m_search );
    d->m_index = index;
}

PimPhoneBook::PimPhoneBook( const PimPhoneBook& a_other ) = default;
PimPhoneBook::PimPhoneBook( PimPhoneBook&& a_other ) noexcept = default;
PimPhoneBook& PimPhoneBook::operator=( const PimPhoneBook& a_other ) = default;
PimPhoneBook& PimPhoneBook::operator=( PimPhoneBook&& a_other ) noexcept = default;
PimPhoneBook::~PimPhoneBook() = default;

Contacts::PimContactBook PimPhoneBook::Book() const
{
    return d->m_book;
}

PimPhoneBookOptions PimPhoneBook::Options() const
{
    return d->m_options;
}

int PimPhoneBook::Size() const
{
    return d->m_book.Size();
}

Contacts::PimContact PimPhoneBook::At( int a_contact ) const
{
    return d->m_book.At( a_contact );
}

QVector<int> PimPhoneBook::Sorted() const
{
    return d->m_index->m_search.Sorted();
}

QString PimPhoneBook::Section( int a_contact ) const
{
    return d->m_index->m_search.Section( a_contact );
}

QVector<PimPhoneBookCaller> PimPhoneBook::WhoIs( const QString& a_number ) const
{
    return d->m_index->m_callers.Find( d->m_index->m_numbers, ReadWrittenNumber( a_number ) );
}

QVector<PimPhoneBookMatch> PimPhoneBook::Find( const QString& a_text ) const
{
    return d->m_index->m_search.Find( ReadSearchedText( a_text, d->m_home ), d->m_recent );
}

QVector<PimPhoneBookMatch> PimPhoneBook::FindByKeys( const QString& a_keys ) const
{
    return d->m_index->m_search.Find( ReadSearchedKeys( a_keys, d->m_home ), d->m_recent );
}

void PimPhoneBook::SetRecentCalls( const QStringList& a_numbers )
{
    std::vector<bool> isKnown( static_cast<size_t>( Size() ) );
    QVector<int> recent;
    for ( const QString& number : a_numbers )
    {
        for ( const PimPhoneBookCaller& caller : WhoIs( number ) )
        {
            const auto contact = static_cast<size_t>( caller.m_contact );
            if ( caller.m_grade < PimPhoneBookGrade::National || isKnown[contact] )
                continue;
            isKnown[contact] = true;
            recent.append( caller.m_contact );
        }
    }
    d->m_recent = recent;
}

} // namespace PimManager::PhoneBook
