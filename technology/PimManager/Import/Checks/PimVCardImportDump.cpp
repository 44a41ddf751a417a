#include "PimVCardImportDump.h"

#include "PimVCardDecoding.h"

#include <QCryptographicHash>
#include <QString>

#include <array>
#include <utility>

namespace PimManager::vCardImport
{

namespace
{

using vCard::PimVCard;
using vCard::PimVCardParameter;
using vCard::PimVCardProperty;

constexpr int s_kLongest = 160;

bool IsShown( QChar a_character )
{
    const ushort code = a_character.unicode();
    return code >= 0x20 && code != 0x7F && code != '\\' && !( code >= 0x80 && code < 0xA0 ) &&
           code != QChar::LineSeparator && code != QChar::ParagraphSeparator && code != QChar::ByteOrderMark;
}

QByteArray Shown( const QString& a_text )
{
    QString text;
    for ( const QChar character : a_text.left( s_kLongest ) )
    {
        if ( IsShown( character ) )
            text += character;
        else
            text += QStringLiteral( "\\x%1;" ).arg( character.unicode(), 0, 16 );
    }
    QByteArray shown = text.toUtf8();
    if ( a_text.size() > s_kLongest )
        shown += "... (" + QByteArray::number( a_text.size() ) + ", " +
                 QCryptographicHash::hash( a_text.toUtf8(), QCryptographicHash::Md5 ).toHex().left( 8 ) + ')';
    return shown;
}

QByteArray Shown( const QByteArray& a_bytes )
{
    return Shown( QString::fromLatin1( a_bytes ) );
}

QByteArray DumpOf( const PimVCardProperty& a_property )
{
    QByteArray text = Shown( a_property.GetGroupID() ) + '|' + Shown( a_property.GetName() ) + '|';
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
        text += '[' + Shown( parameter->GetName() ) + '=' + Shown( parameter->GetValue() ) + ']';
    const QList<QString> values = a_property.GetValues();
    for ( const QString& value : values )
        text += '<' + Shown( value ) + '>';
    return text;
}

// What the helpers make of a property, where that is more than its values.
QByteArray DecodedOf( const PimVCard& a_card, const PimVCardProperty& a_property )
{
    QByteArray text;
    if ( TextsOf( a_property ) != QStringList( a_property.GetValues() ) )
        text += " text=" + Shown( TextOf( a_property ) );
    if ( !TypesOf( a_property ).isEmpty() )
        text += " types=" + Shown( TypesOf( a_property ).join( QLatin1Char( ',' ) ) );
    if ( PreferenceOf( a_property ) != 0 )
        text += " pref=" + QByteArray::number( PreferenceOf( a_property ) );
    if ( !LabelOf( a_card, a_property ).isEmpty() )
        text += " label=" + Shown( LabelOf( a_card, a_property ) );
    if ( IsNamed( a_property, "PHOTO" ) || IsNamed( a_property, "LOGO" ) )
    {
        const PimVCardAttachment attachment = AttachmentOf( a_property );
        text += " picture=" + QByteArray::number( attachment.m_bytes.size() ) + ' ' + attachment.m_mediaType.toUtf8() +
                ' ' + attachment.m_fileEnding.toUtf8() + ' ' + Shown( attachment.m_address );
    }
    if ( const std::optional<PimVCardCall> call = CallOf( a_property ) )
        text += " call=" + QByteArray::number( static_cast<int>( call->m_direction ) ) + ' ' +
                call->m_when.toString( Qt::ISODate ).toUtf8();
    return text;
}

QByteArray DumpOf( const PimVCardPosition& a_position )
{
    return QByteArray::number( a_position.m_line ) + ':' + QByteArray::number( a_position.m_column ) + '@' +
           QByteArray::number( a_position.m_offset );
}

QByteArray DumpOf( const PimVCardImportAccount& a_account )
{
    using Count = std::pair<const char*, qint64>;
    const std::array counts = {
        Count{ "bytes", a_account.m_bytes },
        Count{ "begin", a_account.m_beginLines },
        Count{ "whole", a_account.m_cardsWhole },
        Count{ "part", a_account.m_cardsInPart },
        Count{ "refused", a_account.m_cardsRefused },
        Count{ "nested", a_account.m_cardsNested },
        Count{ "lines", a_account.m_lines },
        Count{ "delivered", a_account.m_linesDelivered },
        Count{ "boundary", a_account.m_linesBoundary },
        Count{ "dropped", a_account.m_linesDropped },
        Count{ "of refused", a_account.m_linesRefused },
        Count{ "filtered", a_account.m_linesFiltered },
        Count{ "blank", a_account.m_linesBlank },
        Count{ "outside", a_account.m_linesOutside },
        Count{ "crlf", a_account.m_crLfs },
        Count{ "lf", a_account.m_lfs },
        Count{ "cr", a_account.m_crs },
        Count{ "crcrlf", a_account.m_crCrLfs },
        Count{ "replaced", a_account.m_charactersReplaced },
        Count{ "2.1", a_account.m_version21 },
        Count{ "3.0", a_account.m_version30 },
        Count{ "4.0", a_account.m_version40 },
        Count{ "other", a_account.m_versionOther },
    };
    QByteArray text = "account " + a_account.m_charset + " by evidence " +
                      QByteArray::number( static_cast<int>( a_account.m_evidence ) );
    for ( const auto& [name, count] : counts )
    {
        if ( count != 0 )
            text += QByteArray( ", " ) + name + ' ' + QByteArray::number( count );
    }
    return text + ( a_account.AddsUp() ? "\n" : ", does not add up\n" );
}

} // namespace

QByteArray DumpOf( const PimVCard& a_card )
{
    QByteArray text;
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
        text += DumpOf( *property ) + '\n';
    return text;
}

QByteArray DumpOf( const PimVCardImportResult& a_result )
{
    QByteArray text;
    for ( const PimVCardImportedCard& card : a_result.m_cards )
    {
        text += "card " + QByteArray::number( card.m_index ) + " at " + DumpOf( card.m_position ) +
                ( card.m_isWhole ? " whole: " : " in part: " ) + Shown( DisplayNameOf( *card.m_card ) ) + '\n';
        const QList<PimVCardProperty*> properties = card.m_card->GetProperties();
        for ( const PimVCardProperty* property : properties )
            text += "  " + DumpOf( *property ) + DecodedOf( *card.m_card, *property ) + '\n';
    }
    for ( const PimVCardDiagnostic& diagnostic : a_result.m_account.m_diagnostics )
        text += DumpOf( diagnostic.m_position ) + " card " + QByteArray::number( diagnostic.m_card ) + ' ' +
                NameOf( diagnostic.m_severity ).latin1() + ' ' + NameOf( diagnostic.m_code ).latin1() + ' ' +
                QByteArray::number( diagnostic.m_count ) + '\n';
    for ( const PimVCardReject& reject : a_result.m_rejects )
        text += "reject " + QByteArray( NameOf( reject.m_reason ).latin1() ) + " card " +
                QByteArray::number( reject.m_card ) + " at " + DumpOf( reject.m_position ) + ": " +
                Shown( reject.m_bytes ) + '\n';
    return text + DumpOf( a_result.m_account );
}

PimVCardImportResult ImportInPieces( const QByteArray& a_bytes, const QList<int>& a_places,
                                     const PimVCardImportOptions& a_options )
{
    PimVCardImportResult result;
    PimVCardImporter importer( a_options );
    importer.SetCardHandler(
        [&result]( PimVCardImportedCard a_card )
        {
            result.m_cards.push_back( std::move( a_card ) );
            return true;
        } );
    importer.SetRejectHandler( [&result]( const PimVCardReject& a_reject )
                               { result.m_rejects.push_back( a_reject ); } );
    int begin = 0;
    for ( const int place : a_places )
    {
        importer.Feed( a_bytes.mid( begin, place - begin ) );
        begin = place;
    }
    importer.Feed( a_bytes.mid( begin ) );
    result.m_account = importer.Finish();
    return result;
}

} // namespace PimManager::vCardImport
