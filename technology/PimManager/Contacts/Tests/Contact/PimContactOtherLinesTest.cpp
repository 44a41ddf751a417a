#include "ContactRows.h"
#include "Lines/PropertyTable.h"
#include "SampleFiles.h"

#include <QFile>
#include <QSet>

#include <array>

namespace PimManager::Contacts
{

namespace
{

// The values of the lines.
std::string ShownOthers( const PimContact& a_contact )
{
    std::string shown;
    const QList<PimContactLine> lines = a_contact.OtherLines();
    for ( const PimContactLine& line : lines )
        shown += line.Name().toStdString() + ':' + line.Value().toStdString() + ' ';
    return shown;
}

constexpr std::array s_kRows = {
    ContactRow{ "3.0", "FN:a\r\nX-COLOR:red\r\nX-COLOR:\r\nNAME:x\r\nPROFILE:VCARD",
                "X-COLOR:red X-COLOR: NAME:x PROFILE:VCARD " },
    ContactRow{ "4.0", "JSPROP;JSPTR=a:1\r\nFN:a\r\nFOO:b", "JSPROP:1 FOO:b " },
    // Of several, the first one with a text is read.
    ContactRow{ "3.0", "UID:\r\nUID:1\r\nUID:2\r\nREV:2024\r\nREV:2025\r\nKIND:a\r\nKIND:b", "UID:2 REV:2025 KIND:b " },
    ContactRow{ "3.0", "N:a\r\nN:b\r\nN:;;;\r\nGENDER:M\r\nGENDER:F\r\nSORT-STRING:a\r\nSORT-STRING:b",
                "N:b GENDER:F SORT-STRING:b " },
    ContactRow{ "3.0", "X-MAIDENNAME:a\r\nX-MAIDENNAME:b\r\nX-PHONETIC-FIRST-NAME:", "X-MAIDENNAME:b " },
    ContactRow{ "4.0", "N;ALTID=1:a\r\nN;ALTID=1:b\r\nTEL;ALTID=1:1\r\nTEL;ALTID=1:2", "" },
    // What cannot be read.
    ContactRow{ "3.0", "GEO:north\r\nGEO:1;2\r\nGEO:3;4\r\nTZ:a\r\nTZ:b", "GEO:north GEO:3;4 TZ:b " },
    ContactRow{ "4.0", "CLIENTPIDMAP:x;y\r\nCLIENTPIDMAP:1;a\r\nCLIENTPIDMAP:2;b", "CLIENTPIDMAP:x;y " },
    ContactRow{ "2.1",
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/unknown;a\r\nX-ANDROID-CUSTOM:a\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/relation;Ada;1\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;Nell\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;2024;1",
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/unknown;a X-ANDROID-CUSTOM:a " },
    // What belongs to no field.
    ContactRow{
        "3.0",
        "a.X-ABLabel:x\r\nb.X-ABLabel:y\r\nb.TEL:1\r\nb.X-ABLabel:z\r\nX-ABLabel:w\r\nc.X-COLOR:r\r\nc.X-ABLabel:v",
        "X-ABLabel:x X-ABLabel:z X-ABLabel:w X-COLOR:r X-ABLabel:v " },
    ContactRow{ "3.0", "a.X-ABADR:de\r\nb.ADR:;;b\r\nb.X-ABADR:de\r\nb.X-ABADR:fr", "X-ABADR:de X-ABADR:fr " },
    ContactRow{ "4.0", "BDAY:2020\r\nBIRTHPLACE:a\r\nDEATHPLACE:b", "" },
    // Nothing to read.
    ContactRow{
        "3.0",
        "TEL:\r\nADR:;;;;;;\r\nN:;;\r\nORG:;\r\nNICKNAME:,,\r\nNOTE: \r\nPHOTO:\r\nPHOTO;ENCODING=b:\r\nBDAY:", "" },
    ContactRow{ "2.1", "AGENT:\r\nBEGIN:VCARD\r\nFN:a\r\nX-COLOR:b\r\nEND:VCARD\r\nLABEL:a", "" },
    ContactRow{ "2.1", "", "" },
};

// The getters of these return the first value, and have no ids.
bool IsSingle( const PimContactLine& a_line )
{
    static const QSet<int> s_single = []
    {
        QSet<int> properties;
        for ( const PropertyId property :
              { PropertyId::CallTime, PropertyId::Class, PropertyId::ClientPidMap, PropertyId::Created, PropertyId::Geo,
                PropertyId::Kind, PropertyId::Language, PropertyId::Mailer, PropertyId::ProdId, PropertyId::Rev,
                PropertyId::SortString, PropertyId::Tz, PropertyId::Uid, PropertyId::Version } )
            properties.insert( static_cast<int>( property ) );
        return properties;
    }();
    const QByteArray name = a_line.Name();
    return s_single.contains(
        static_cast<int>( PropertyOf( { name.constData(), static_cast<size_t>( name.size() ) } ) ) );
}

template <class Field>
void TakeIds( const PimContactList<Field>& a_fields, QSet<int>& a_ids )
{
    for ( const Field& field : a_fields )
    {
        const PimContactList<Field> alternatives = field.Alternatives();
        for ( const Field& alternative : alternatives )
        {
            const QList<int> ids = alternative.LineIds();
            for ( const int id : ids )
                a_ids.insert( id );
        }
    }
}

template <class Field>
void TakeListIds( const PimContact& a_contact, PimContactList<Field> ( PimContact::*a_fields )() const,
                  QSet<int>& a_ids )
{
    TakeIds( ( a_contact.*a_fields )(), a_ids );
}

/// \return the ids of the lines that some field was read from.
QSet<int> FieldIds( const PimContact& a_contact )
{
    QSet<int> ids;
    const auto take = [&]( auto... a_fields ) { ( TakeListIds( a_contact, a_fields, ids ), ... ); };
    take( &PimContact::FormattedNames, &PimContact::Nicknames, &PimContact::Phones, &PimContact::Mails,
          &PimContact::Addresses, &PimContact::Messengers, &PimContact::Urls, &PimContact::ContactUris,
          &PimContact::SpokenLanguages, &PimContact::Events, &PimContact::Organisations, &PimContact::Titles,
          &PimContact::Roles, &PimContact::Expertise, &PimContact::Hobbies, &PimContact::Interests,
          &PimContact::OrganisationDirectories, &PimContact::Relations, &PimContact::Members, &PimContact::Photos,
          &PimContact::Logos, &PimContact::Sounds, &PimContact::Keys, &PimContact::Notes, &PimContact::Categories,
          &PimContact::GrammaticalGenders, &PimContact::Pronouns, &PimContact::CalendarUris,
          &PimContact::CalendarAddresses, &PimContact::FreeBusyUris, &PimContact::Sources, &PimContact::Xml );
    TakeIds( PimContactList<PimContactName>{ a_contact.Name() }, ids );
    if ( a_contact.Gender() )
        for ( const int id : a_contact.Gender()->LineIds() )
            ids.insert( id );
    return ids;
}

/// Checks that each line is in exactly one of the fields and the other lines, unless it is empty or has a getter.
void ExpectAllLines( const PimContact& a_contact, const std::string& a_where )
{
    const QSet<int> fields = FieldIds( a_contact );
    const QList<PimContactLine> otherLines = a_contact.OtherLines();
    auto other = otherLines.begin();
    const QList<int> ids = a_contact.LineIds();
    for ( const int id : ids )
    {
        const PimContactLine line = a_contact.Line( id );
        const bool isOther = other != otherLines.end() && line.OffsetInCard() == other->OffsetInCard();
        if ( isOther )
            ++other;
        const bool isAccounted =
            fields.contains( id ) || isOther || IsSingle( line ) || a_contact.FieldOf( line ).Text().isEmpty();
        EXPECT_TRUE( isAccounted ) << a_where << ": " << line.Name().toStdString();
        EXPECT_FALSE( fields.contains( id ) && isOther ) << a_where << ": " << line.Name().toStdString();
    }
    EXPECT_EQ( other - otherLines.end(), 0 ) << a_where;
}

int ExpectAllLinesOf( const QByteArray& a_bytes, const std::string& a_name )
{
    const PimContactBook book = PimContactBook::FromBytes( a_bytes );
    for ( int i = 0; i < book.Size(); ++i )
        ExpectAllLines( book.At( i ), a_name + ", card " + std::to_string( i ) );
    return book.Size();
}

} // namespace

TEST( PimContactOtherLinesTest, LinesThatNobodyReadsAreOthers )
{
    ExpectRows( s_kRows, ShownOthers );
}

TEST( PimContactOtherLinesTest, EveryLineOfTheSamplesIsAFieldOrAnother )
{
    int cards = 0;
    for ( const std::string& name : SampleNames() )
        cards += ExpectAllLinesOf( SampleFile( name + ".vcf" ), name );
    EXPECT_GT( cards, 100 );
}

TEST( PimContactOtherLinesTest, EveryLineOfTheExamplesIsAFieldOrAnother )
{
    for ( const char* const name : { "phonebook.vcf", "messy-phonebook.vcf" } )
    {
        QFile file( QStringLiteral( PIMCONTACT_EXAMPLES ) + QLatin1Char( '/' ) + QLatin1String( name ) );
        ASSERT_TRUE( file.open( QIODevice::ReadOnly ) ) << name;
        EXPECT_GT( ExpectAllLinesOf( file.readAll(), name ), 3 ) << name;
    }
}

} // namespace PimManager::Contacts
