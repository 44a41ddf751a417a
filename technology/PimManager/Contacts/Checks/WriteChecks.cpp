#include "Checks/WriteChecks.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QBuffer>
#include <QJsonDocument>

#include <algorithm>
#include <array>

namespace PimManager::Contacts::Checks
{

namespace
{

using Code = PimContactWriteCode;

struct Target
{
    PimContactFormat m_format;
    PimContactVersion m_version;
    const char* m_name;
};

constexpr std::array s_kTargets = { Target{ PimContactFormat::V21, PimContactVersion::V21, "2.1" },
                                    Target{ PimContactFormat::V30, PimContactVersion::V30, "3.0" },
                                    Target{ PimContactFormat::V40, PimContactVersion::V40, "4.0" } };

struct Written
{
    QByteArray m_bytes;
    PimContactWriteReport m_report;
};

Written WriteCard( const PimContactCard& a_card, PimContactFormat a_format )
{
    Written written;
    QBuffer buffer( &written.m_bytes );
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, a_format );
    writer.Write( a_card );
    writer.Finish();
    written.m_report = writer.Report();
    return written;
}

PimContactBook BookIn( const QByteArray& a_bytes )
{
    constexpr int s_kDeep = 1000;
    PimContactOptions options;
    options.SetNesting( s_kDeep );
    return PimContactBook::FromBytes( a_bytes, options );
}

PimContactCard CardIn( const QByteArray& a_bytes )
{
    const PimContactBook book = BookIn( a_bytes );
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

// A long head of 2.1 is not folded.
bool IsTooLong( const QByteArray& a_line, bool a_is21 )
{
    constexpr int s_kLongest = 75;
    return a_line.size() > s_kLongest && !( a_is21 && a_line.lastIndexOf( ':' ) > s_kLongest - 11 );
}

Broken BrokenLayout( const QByteArray& a_bytes, bool a_is21 )
{
    if ( !a_bytes.endsWith( "\r\n" ) )
        return "the last line has no line ending";
    QByteArray rest = a_bytes;
    rest.replace( "\r\n", QByteArray( 1, '\0' ) );
    if ( rest.contains( '\r' ) || rest.contains( '\n' ) || rest.count( '\0' ) != a_bytes.count( '\n' ) )
        return "a line does not end in CR LF, or there is a NUL";
    const QList<QByteArray> lines = rest.split( '\0' );
    for ( const QByteArray& line : lines )
    {
        if ( IsTooLong( line, a_is21 ) )
            return "a line is too long: " + line;
        if ( QString::fromUtf8( line ).toUtf8() != line )
            return "a line is not in UTF-8 of its own: " + line;
    }
    return Broken();
}

// A nested card of 2.1 may be written with fewer or more lines.
Broken BrokenReport( const PimContactReport& a_report )
{
    const QList<PimContactDiagnostic> diagnostics = a_report.Diagnostics();
    for ( const PimContactDiagnostic& diagnostic : diagnostics )
        return "the reader finds: " + diagnostic.Text().toUtf8();
    return Holds( a_report.IsComplete(), "the reader says that something is missing" );
}

bool HasOnly( const PimContactWriteReport& a_report, std::initializer_list<Code> a_codes )
{
    for ( int code = 0; code < s_kPimContactWriteCodes; ++code )
    {
        const auto each = static_cast<Code>( code );
        if ( a_report.Count( each ) > 0 && std::find( a_codes.begin(), a_codes.end(), each ) == a_codes.end() )
            return false;
    }
    return true;
}

template <typename Value>
Broken Equal( const char* a_what, const PimContact& a_first, const PimContact& a_second,
              Value ( PimContact::*a_value )() const )
{
    return ( a_first.*a_value )() == ( a_second.*a_value )() ? Broken() : Broken( a_what ) + " differ";
}

Broken BrokenEquality( const PimContact& a_before, const PimContact& a_after )
{
    if ( a_before == a_after )
        return Broken();
    const Broken broken =
        FirstBroken( [&] { return Equal( "the names", a_before, a_after, &PimContact::Name ); },
                     [&] { return Equal( "the display names", a_before, a_after, &PimContact::DisplayName ); },
                     [&] { return Equal( "the sort names", a_before, a_after, &PimContact::SortName ); },
                     [&] { return Equal( "the formatted names", a_before, a_after, &PimContact::FormattedNames ); },
                     [&] { return Equal( "the phones", a_before, a_after, &PimContact::Phones ); },
                     [&] { return Equal( "the mails", a_before, a_after, &PimContact::Mails ); },
                     [&] { return Equal( "the addresses", a_before, a_after, &PimContact::Addresses ); },
                     [&] { return Equal( "the events", a_before, a_after, &PimContact::Events ); },
                     [&] { return Equal( "the messengers", a_before, a_after, &PimContact::Messengers ); },
                     [&] { return Equal( "the organisations", a_before, a_after, &PimContact::Organisations ); },
                     [&] { return Equal( "the relations", a_before, a_after, &PimContact::Relations ); },
                     [&] { return Equal( "the photos", a_before, a_after, &PimContact::Photos ); },
                     [&] { return Equal( "the sounds", a_before, a_after, &PimContact::Sounds ); },
                     [&] { return Equal( "the keys", a_before, a_after, &PimContact::Keys ); },
                     [&] { return Equal( "the notes", a_before, a_after, &PimContact::Notes ); },
                     [&] { return Equal( "the categories", a_before, a_after, &PimContact::Categories ); },
                     [&] { return Equal( "the nicknames", a_before, a_after, &PimContact::Nicknames ); },
                     [&] { return Equal( "the URLs", a_before, a_after, &PimContact::Urls ); },
                     [&] { return Equal( "the positions", a_before, a_after, &PimContact::Position ); },
                     [&] { return Equal( "the UIDs", a_before, a_after, &PimContact::Uid ); },
                     [&] { return Equal( "the revisions", a_before, a_after, &PimContact::Revision ); },
                     [&] { return Same( "other lines", a_after.OtherLines().size(), a_before.OtherLines().size() ); } );
    return broken.isEmpty() ? Broken( "the contacts differ" ) : broken;
}

template <class Field, typename Text>
QStringList TextsOf( const PimContactList<Field>& a_fields, Text a_text )
{
    QStringList texts;
    for ( const Field& field : a_fields )
        texts.append( a_text( field ) );
    return texts;
}

QStringList Numbers( const PimContact& a_contact )
{
    return TextsOf( a_contact.Phones(), []( const PimContactPhone& a_phone ) { return a_phone.Number(); } );
}

QStringList MailAddresses( const PimContact& a_contact )
{
    return TextsOf( a_contact.Mails(), []( const PimContactMail& a_mail ) { return a_mail.Address(); } );
}

QStringList NoteTexts( const PimContact& a_contact )
{
    return TextsOf( a_contact.Notes(), []( const PimContactText& a_note ) { return a_note.Text(); } );
}

QList<QByteArray> Pictures( const PimContact& a_contact )
{
    QList<QByteArray> pictures;
    const PimContactList<PimContactMedia> photos = a_contact.Photos();
    for ( const PimContactMedia& photo : photos )
    {
        if ( !photo.Bytes().isEmpty() )
            pictures.append( photo.Bytes() );
    }
    return pictures;
}

Broken BrokenCommon( const PimContact& a_before, const PimContact& a_after )
{
    return FirstBroken(
        [&] { return Holds( a_before.DisplayName() == a_after.DisplayName(), "another display name" ); },
        [&] { return Holds( Numbers( a_before ) == Numbers( a_after ), "other numbers" ); },
        [&] { return Holds( MailAddresses( a_before ) == MailAddresses( a_after ), "other mail addresses" ); },
        [&] { return Holds( NoteTexts( a_before ) == NoteTexts( a_after ), "other notes" ); },
        [&] { return Holds( a_before.Birthday() == a_after.Birthday(), "another birthday" ); },
        [&] { return Holds( a_before.Gender() == a_after.Gender(), "another gender" ); },
        [&] { return Holds( a_before.Uid() == a_after.Uid(), "another UID" ); },
        [&] { return Holds( Pictures( a_before ) == Pictures( a_after ), "other pictures" ); } );
}

bool IsOfVersion( PimContactVersion a_version, const Target& a_target )
{
    return a_version == a_target.m_version ||
           ( a_version == PimContactVersion::Unknown && a_target.m_version == PimContactVersion::V30 );
}

Broken BrokenMeaning( const PimContactCard& a_card, const Target& a_target, const PimContactCard& a_again,
                      const PimContactWriteReport& a_report )
{
    const PimContact before( a_card );
    const PimContact after( a_again );
    if ( !IsOfVersion( a_card.Version(), a_target ) )
    {
        const bool isKept = HasOnly( a_report, { Code::NameAdded, Code::PropertyRenamed, Code::ParameterDropped,
                                                 Code::LineDropped, Code::CardFiltered } );
        return isKept ? BrokenCommon( before, after ) : Broken();
    }
    return HasOnly( a_report, { Code::LineDropped, Code::CardFiltered } ) ? BrokenEquality( before, after ) : Broken();
}

Broken BrokenTarget( const PimContactCard& a_card, const Target& a_target )
{
    const Written written = WriteCard( a_card, a_target.m_format );
    const PimContactBook book = BookIn( written.m_bytes );
    if ( book.Size() != 1 )
        return Same( "cards in what was written", book.Size(), 1 ) + ":\n" + written.m_bytes;
    const PimContactCard& again = book.CardAt( 0 );
    const Broken broken =
        FirstBroken( [&] { return Holds( again.IsWhole(), "the card is not whole" ); },
                     [&] { return Holds( again.Version() == a_target.m_version, "the card has another version" ); },
                     [&] { return BrokenReport( book.Report() ); },
                     [&] { return BrokenLayout( written.m_bytes, a_target.m_version == PimContactVersion::V21 ); },
                     [&]
                     {
                         const QByteArray twice = WriteCard( again, a_target.m_format ).m_bytes;
                         return twice == written.m_bytes ? Broken() : "written again it is\n" + twice;
                     },
                     [&] { return BrokenMeaning( a_card, a_target, again, written.m_report ); } );
    return broken.isEmpty()
               ? broken
               : "written as " + QByteArray( a_target.m_name ) + ": " + broken + "\nwritten was\n" + written.m_bytes;
}

// The components of a name or an address without any text are completed.
bool HasEmptyComponents( const PimContactCard& a_card )
{
    const QList<PimContactLine> lines = PimContact( a_card ).OtherLines();
    return std::any_of( lines.begin(), lines.end(),
                        []( const PimContactLine& a_line )
                        { return a_line.Name().toUpper() == "N" || a_line.Name().toUpper() == "ADR"; } );
}

bool HasControls( const QByteArray& a_bytes )
{
    return std::any_of( a_bytes.begin(), a_bytes.end(),
                        []( char a_byte )
                        {
                            const auto byte = static_cast<unsigned char>( a_byte );
                            return byte == 0x7F || ( byte < ' ' && a_byte != '\r' && a_byte != '\n' && a_byte != '\t' );
                        } );
}

// A number of jCard has neither a plus sign nor leading zeros. Control characters are kept, but end a URI.
bool MayChange( const PimContactCard& a_card )
{
    const QByteArray bytes = a_card.Bytes().toLower();
    return bytes.contains( "integer" ) || bytes.contains( "float" ) || HasControls( bytes ) ||
           HasEmptyComponents( a_card );
}

Broken BrokenJCard( const PimContactCard& a_card )
{
    const Target target = { PimContactFormat::JCard, PimContactVersion::V40, "jCard" };
    const Written written = WriteCard( a_card, target.m_format );
    QJsonParseError error{};
    QJsonDocument::fromJson( written.m_bytes, &error );
    const PimContactBook book = BookIn( written.m_bytes );
    const PimContactReport report = book.Report();
    const Broken broken = FirstBroken(
        [&] { return Holds( error.error == QJsonParseError::NoError, "it is no JSON" ); },
        [&] { return Same( "cards in what was written", book.Size(), 1 ); },
        [&] { return Same( "faults in the JSON", report.Findings( PimContactDiagnosticCode::JsonSyntax ), 0 ); },
        [&] { return Same( "parts that are no property", report.Findings( PimContactDiagnosticCode::JsonPart ), 0 ); },
        [&] { return Holds( report.IsComplete(), "the reader says that something is missing" ); },
        [&]
        {
            const QByteArray twice = WriteCard( book.CardAt( 0 ), target.m_format ).m_bytes;
            return twice == written.m_bytes ? Broken() : "written again it is\n" + twice;
        },
        [&] {
            return MayChange( a_card ) ? Broken() : BrokenMeaning( a_card, target, book.CardAt( 0 ), written.m_report );
        } );
    return broken.isEmpty() ? broken : "written as jCard: " + broken + "\nwritten was\n" + written.m_bytes;
}

PimContactCard Round( const PimContactCard& a_card )
{
    PimContactCard card = a_card;
    for ( const PimContactFormat format :
          { PimContactFormat::V30, PimContactFormat::V21, PimContactFormat::V40, PimContactFormat::JCard } )
        card = CardIn( WriteCard( card, format ).m_bytes );
    return card;
}

Broken BrokenRounds( const PimContactCard& a_card )
{
    const PimContactCard first = Round( a_card );
    const PimContactCard second = Round( first );
    const PimContactCard third = Round( second );
    const Broken broken = BrokenEquality( PimContact( first ), PimContact( second ) );
    if ( !broken.isEmpty() )
        return "a second round over all versions: " + broken + "; it changes\n" + first.Bytes() + "to\n" +
               second.Bytes();
    return second.Bytes() == third.Bytes()
               ? Broken()
               : "a third round over all versions changes\n" + second.Bytes() + "to\n" + third.Bytes();
}

Broken BrokenCard( const PimContactCard& a_card )
{
    const Broken broken = FirstBroken(
        [&]
        { return FirstBrokenOf( s_kTargets, [&]( const Target& a_each ) { return BrokenTarget( a_card, a_each ); } ); },
        [&] { return BrokenJCard( a_card ); }, [&] { return BrokenRounds( a_card ); } );
    return broken.isEmpty() ? broken : InCard( broken + "\nread was\n" + a_card.Bytes(), a_card );
}

} // namespace

Broken BrokenWriting( const Subject& a_subject )
{
    return FirstBrokenOf( a_subject.m_reading.m_cards, BrokenCard );
}

} // namespace PimManager::Contacts::Checks
