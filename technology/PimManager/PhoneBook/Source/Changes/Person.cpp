#include "Changes/Person.h"

#include <PimManager/PhoneBook/PimPhoneBookNumber.h>

#include <QHash>

#include <algorithm>
#include <array>

namespace PimManager::PhoneBook
{

using Contacts::PimContact;
using Contacts::PimContactCard;
using Contacts::PimContactLine;
using Contacts::PimContactMail;
using Contacts::PimContactPhone;

namespace
{

constexpr int s_kLeastDigits = 3;
constexpr size_t s_kMostLineNumbers = 64;

/// \return the last digits of a number. Empty for a text that is no number.
QString EndingOf( const PimContactPhone& a_phone, const PimPhoneBookOptions& a_options )
{
    const auto number = PimPhoneBookNumber::FromPhone( a_phone, a_options.Region() );
    const QString digits = number.National();
    const QString extension = number.Extension();
    if ( digits.size() < s_kLeastDigits )
        return QString();
    return digits.right( a_options.EndingDigits() ) + QLatin1Char( 'x' ) + extension;
}

std::vector<quint64> AddressesOf( const PimContact& a_contact, const PimPhoneBookOptions& a_options,
                                  TextNumbers& a_numbers )
{
    std::vector<quint64> addresses;
    const auto add = [&]( const QString& a_text )
    {
        if ( !a_text.isEmpty() )
            addresses.push_back( a_numbers.NumberOf( a_text ) );
    };
    for ( const PimContactPhone& phone : a_contact.Phones() )
        add( EndingOf( phone, a_options ) );
    for ( const PimContactMail& mail : a_contact.Mails() )
        add( mail.Address().contains( QLatin1Char( '@' ) ) ? mail.Address().trimmed().toLower() : QString() );
    std::sort( addresses.begin(), addresses.end() );
    addresses.erase( std::unique( addresses.begin(), addresses.end() ), addresses.end() );
    return addresses;
}

std::vector<quint64> WordsOf( const PersonName& a_name, TextNumbers& a_numbers )
{
    std::vector<quint64> words;
    for ( const QString& word : a_name.Words() )
        words.push_back( a_numbers.NumberOf( word ) );
    std::sort( words.begin(), words.end() );
    words.erase( std::unique( words.begin(), words.end() ), words.end() );
    return words;
}

// Names, numbers and mail addresses are compared otherwise. The others differ, or are the same for many contacts.
bool IsOtherEvidence( const PimContactLine& a_line )
{
    constexpr std::array s_kNames = { "FN",      "N",   "NICKNAME", "ORG", "TEL",   "EMAIL",
                                      "VERSION", "UID", "X-BT-UID", "REV", "PRODID" };
    return std::any_of( s_kNames.begin(), s_kNames.end(),
                        [&a_line]( const char* a_name ) { return a_line.IsNamed( QLatin1String( a_name ) ); } );
}

} // namespace

Person::Person( const PimContactCard& a_card, int a_index, const QString& a_uid, const PimPhoneBookOptions& a_options,
                PersonTexts& a_texts ) :
    m_card( a_card ),
    m_index( a_index ),
    m_name( PimContact( a_card ) ),
    m_nameNumber( a_texts.m_names.NumberOf( m_name.Key() ) ),
    m_words( WordsOf( m_name, a_texts.m_words ) ),
    m_uid( a_uid ),
    m_addresses( AddressesOf( PimContact( a_card ), a_options, a_texts.m_addresses ) )
{
}

bool HaveOtherUids( const Person& a_first, const Person& a_second )
{
    return !a_first.m_uid.isEmpty() && !a_second.m_uid.isEmpty() && a_first.m_uid != a_second.m_uid;
}

std::vector<quint64> LineNumbers( const PimContactCard& a_card )
{
    std::vector<quint64> numbers;
    for ( const PimContactLine& line : a_card )
    {
        if ( !IsOtherEvidence( line ) )
            numbers.push_back( qHash( line.Name().toUpper() + ':' + line.Value() ) );
    }
    std::sort( numbers.begin(), numbers.end() );
    numbers.resize( std::min( numbers.size(), s_kMostLineNumbers ) );
    return numbers;
}

} // namespace PimManager::PhoneBook
