#include "Checks/ContactChecks.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactBook.h>

#include <algorithm>
#include <array>
#include <random>

namespace PimManager::Contacts::Checks
{

namespace
{

using Random = std::mt19937;

// Without oddities, a line with such a name is always a property. Other lines may be text that was folded without
// indentation, depending on the lines before them.
constexpr std::array s_kClearNames = { "ADR", "BDAY",  "EMAIL", "FN",    "LABEL", "N",   "NICKNAME", "NOTE",
                                       "ORG", "PHOTO", "TEL",   "TITLE", "UID",   "URL", "VERSION",  "X-ABLabel" };

// The lines that an edit may have changed.
enum class Touch
{
    None,
    Any,
};

QString OddText( Random& a_random )
{
    const std::array texts = { QStringLiteral( "boat" ), QStringLiteral( "a;b,c:d=" ),
                               QStringLiteral( "\\n\"^n\r\nEND:VCARD" ),
                               QString::fromUtf8( "J\xC3\xB6rg \xE6\x9D\xB1" ) };
    return texts.at( a_random() % texts.size() );
}

/// \return a field of the list, or an empty one.
template <class Field>
Field AnyOf( const PimContactList<Field>& a_fields, Random& a_random )
{
    return a_fields.isEmpty() ? Field() : a_fields.at( static_cast<int>( a_random() % uint( a_fields.size() ) ) );
}

template <class Field>
Touch ReplaceLabel( PimContact& a_contact, const PimContactList<Field>& a_fields, Random& a_random )
{
    const Field field = AnyOf( a_fields, a_random );
    Field by = field;
    by.SetLabel( OddText( a_random ) );
    a_contact.Replace( field, by );
    return Touch::Any;
}

template <class Field>
Touch RemoveAny( PimContact& a_contact, const PimContactList<Field>& a_fields, Random& a_random )
{
    a_contact.Remove( AnyOf( a_fields, a_random ) );
    return Touch::Any;
}

Touch AddPhone( PimContact& a_contact, Random& a_random )
{
    PimContactPhone phone( OddText( a_random ), PimContactPhoneKind::Home );
    phone.SetLabel( OddText( a_random ) );
    a_contact.AddPhone( phone );
    return Touch::None;
}

Touch AddAddress( PimContact& a_contact, Random& a_random )
{
    PimContactAddress address;
    address.SetParts( PimContactAddressPart::Street, { OddText( a_random ) } );
    address.SetDeliveryText( OddText( a_random ) );
    a_contact.AddAddress( address );
    return Touch::None;
}

Touch RemoveLine( PimContact& a_contact, Random& a_random )
{
    const QList<int> ids = a_contact.LineIds();
    if ( !ids.isEmpty() )
        a_contact.RemoveLine( ids.at( static_cast<int>( a_random() % uint( ids.size() ) ) ) );
    return Touch::Any;
}

Touch SetAll( PimContact& a_contact, Random& a_random )
{
    a_contact.SetName( PimContactName( OddText( a_random ), OddText( a_random ) ) );
    a_contact.SetDisplayName( OddText( a_random ) );
    a_contact.SetBirthday( PimContactDate::FromText( QStringLiteral( "--04-12" ) ) );
    a_contact.SetPhoto( PimContactMedia( QByteArrayLiteral( "\xFF\xD8\xFF picture" ) ) );
    a_contact.SetCategories( { OddText( a_random ), OddText( a_random ) } );
    a_contact.SetMembers( { OddText( a_random ), OddText( a_random ) } );
    return Touch::Any;
}

Touch Edit( PimContact& a_contact, Random& a_random )
{
    switch ( a_random() % 12 )
    {
    case 0:
        return AddPhone( a_contact, a_random );
    case 1:
        return AddAddress( a_contact, a_random );
    case 2:
        a_contact.AddMail( PimContactMail( OddText( a_random ) ) );
        return Touch::None;
    case 3:
        return RemoveLine( a_contact, a_random );
    case 4:
        return ReplaceLabel( a_contact, a_contact.Phones(), a_random );
    case 5:
        return ReplaceLabel( a_contact, a_contact.Addresses(), a_random );
    case 6:
        return ReplaceLabel( a_contact, a_contact.Events(), a_random );
    case 7:
        return ReplaceLabel( a_contact, a_contact.Messengers(), a_random );
    case 8:
        return ReplaceLabel( a_contact, a_contact.Relations(), a_random );
    case 9:
        return RemoveAny( a_contact, a_contact.Nicknames(), a_random );
    case 10:
        return RemoveAny( a_contact, a_contact.Addresses(), a_random );
    default:
        return SetAll( a_contact, a_random );
    }
}

bool IsUtf8( const PimContactCard& a_card )
{
    return std::all_of( a_card.begin(), a_card.end(),
                        []( const PimContactLine& a_line ) { return a_line.Charset() == "UTF-8"; } );
}

bool IsClear( const PimContactLine& a_line )
{
    const bool isKnown =
        std::any_of( s_kClearNames.begin(), s_kClearNames.end(),
                     [&a_line]( const char* a_name ) { return a_line.IsNamed( QLatin1String( a_name ) ); } );
    return isKnown && !a_line.Oddities();
}

bool AreAllClear( const PimContactCard& a_card )
{
    return std::all_of( a_card.begin(), a_card.end(), IsClear );
}

bool HaveSameNames( const PimContactCard& a_first, const PimContactCard& a_second )
{
    return a_first.LineCount() == a_second.LineCount() &&
           std::equal( a_first.begin(), a_first.end(), a_second.begin(),
                       []( const PimContactLine& a_one, const PimContactLine& a_other )
                       { return a_one.Name() == a_other.Name(); } );
}

// Lines that no typed field reads are read as text.
void ReadAll( const PimContact& a_contact )
{
    const QList<int> ids = a_contact.LineIds();
    for ( const int id : ids )
        a_contact.FieldOf( a_contact.Line( id ) ).Text();
}

Broken BrokenOtherLines( const PimContact& a_before, const PimContact& a_after )
{
    return FirstBrokenOf(
        a_before.LineIds(), [&]( int a_id )
        { return Holds( a_before.Line( a_id ) == a_after.Line( a_id ), "an added line changed another one" ); } );
}

Broken BrokenBytes( const PimContact& a_contact, const PimContactCard& a_card, const Subject& a_subject )
{
    PimContactOptions options;
    options.SetDefaultCharset( a_subject.m_options.DefaultCharset() );
    options.SetNesting( a_subject.m_options.Nesting() );
    const PimContactBook book = PimContactBook::FromBytes( a_card.Bytes(), options );
    if ( book.Size() != 1 )
        return Same( "cards read from the bytes of an edited one", book.Size(), 1 );
    const PimContactCard& again = book.CardAt( 0 );
    if ( again.FoldStyle() != a_card.FoldStyle() )
        return Broken();
    if ( !HaveSameNames( again, a_card ) )
        return Holds( !AreAllClear( a_card ), "the bytes of an edited card have other lines" );
    return Holds( book.At( 0 ) == a_contact, "the bytes of an edited card say something else" );
}

Broken BrokenEdit( const PimContactCard& a_card, const Subject& a_subject )
{
    const PimContact before( a_card );
    PimContact after = before;
    Random random( a_subject.m_seed + static_cast<unsigned>( a_card.Number() ) );
    const Touch touch = Edit( after, random );
    const PimContactCard card = after.Card();
    const PimContact compacted = after.Compacted();
    const bool isReread = a_card.IsWhole() && !a_card.IsFiltered() && IsUtf8( a_card );
    const Broken broken = FirstBroken(
        [&] { return Holds( before.Card() == a_card && before == PimContact( a_card ), "an edit changed a copy" ); },
        [&] { return touch == Touch::None ? BrokenOtherLines( before, after ) : Broken(); },
        [&] { return Holds( PimContact( card ) == after, "an edited card says something else than its contact" ); },
        [&] { return Same( "LineCount() of an edited card", card.LineCount(), after.LineIds().size() ); },
        [&] { return Holds( compacted == after, "Compacted() says something else" ); },
        [&] { return Holds( compacted.LineIds() == after.LineIds(), "Compacted() has other ids" ); },
        [&] { return isReread ? BrokenBytes( after, card, a_subject ) : Broken(); } );
    return broken.isEmpty() ? broken : broken + "; the edited card is\n" + card.Bytes();
}

Broken BrokenContact( const PimContactCard& a_card, const Subject& a_subject )
{
    const PimContact contact( a_card );
    ReadAll( contact );
    const Broken broken =
        FirstBroken( [&] { return Holds( contact == PimContact( a_card ), "two contacts of a card are not equal" ); },
                     [&] { return BrokenEdit( a_card, a_subject ); } );
    return InCard( broken, a_card );
}

} // namespace

Broken BrokenContacts( const Subject& a_subject )
{
    return FirstBrokenOf( a_subject.m_reading.m_cards,
                          [&a_subject]( const PimContactCard& a_card ) { return BrokenContact( a_card, a_subject ); } );
}

} // namespace PimManager::Contacts::Checks
