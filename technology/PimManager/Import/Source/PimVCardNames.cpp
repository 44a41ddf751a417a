#include "PimVCardDecoding.h"

#include <QList>

#include <array>

namespace PimManager::vCardImport
{

using vCard::PimVCard;
using vCard::PimVCardProperty;

namespace
{

QString OnOneLine( const QString& a_text )
{
    return a_text.simplified();
}

QString JoinedWords( const QStringList& a_words )
{
    QStringList words;
    for ( const QString& word : a_words )
    {
        if ( !OnOneLine( word ).isEmpty() )
            words.append( OnOneLine( word ) );
    }
    return words.join( QLatin1Char( ' ' ) );
}

QStringList PartsOf( const PimVCardProperty& a_property )
{
    QStringList parts = TextsOf( a_property );
    for ( QString& part : parts )
        part = part.trimmed();
    return parts;
}

QString SpokenNameOf( const PimVCardProperty& a_property )
{
    const PimVCardName name = NameOf( a_property );
    return JoinedWords( { name.m_prefixes, name.m_given, name.m_additional, name.m_family, name.m_suffixes } );
}

QString OrganisationOf( const PimVCardProperty& a_property )
{
    QStringList units = TextsOf( a_property );
    units.removeAll( QString() );
    return OnOneLine( units.join( QLatin1String( ", " ) ) );
}

QString NumberOf( const PimVCardProperty& a_property )
{
    return OnOneLine( TelephoneNumberOf( a_property ) );
}

QString MailOf( const PimVCardProperty& a_property )
{
    return OnOneLine( MailAddressOf( a_property ) );
}

QString LineOf( const PimVCardProperty& a_property )
{
    return OnOneLine( TextOf( a_property ) );
}

struct Source
{
    const char* m_name;
    QString ( *m_read )( const PimVCardProperty& a_property );
};

} // namespace

PimVCardName NameOf( const PimVCardProperty& a_property )
{
    const QStringList parts = PartsOf( a_property );
    return { parts.value( 0 ), parts.value( 1 ), parts.value( 2 ), parts.value( 3 ), parts.value( 4 ) };
}

PimVCardAddress AddressOf( const PimVCardProperty& a_property )
{
    const QStringList parts = PartsOf( a_property );
    return { parts.value( 0 ), parts.value( 1 ), parts.value( 2 ), parts.value( 3 ),
             parts.value( 4 ), parts.value( 5 ), parts.value( 6 ) };
}

QString AddressTextOf( const PimVCardProperty& a_property )
{
    const PimVCardAddress address = AddressOf( a_property );
    QStringList lines = { address.m_postOfficeBox, address.m_extended,
                          address.m_street,        JoinedWords( { address.m_postalCode, address.m_locality } ),
                          address.m_region,        address.m_country };
    lines.removeAll( QString() );
    return lines.join( QLatin1Char( '\n' ) );
}

QString DisplayNameOf( const PimVCard& a_card )
{
    static constexpr std::array<Source, 6> s_kSources = { { { "FN", LineOf },
                                                            { "N", SpokenNameOf },
                                                            { "NICKNAME", LineOf },
                                                            { "ORG", OrganisationOf },
                                                            { "EMAIL", MailOf },
                                                            { "TEL", NumberOf } } };
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const Source& source : s_kSources )
    {
        for ( const PimVCardProperty* property : properties )
        {
            QString name = IsNamed( *property, source.m_name ) ? source.m_read( *property ) : QString();
            if ( !name.isEmpty() )
                return name;
        }
    }
    return QString();
}

} // namespace PimManager::vCardImport
