#include <PimManager/Contacts/PimContactMail.h>

#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/NumberAndMail.h"
#include "Contact/WithKinds.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

namespace
{

class MailData : public WithKinds<MailData>
{
public:
    bool IsSame( const MailData& a_other ) const
    {
        return m_address == a_other.m_address && m_name == a_other.m_name && m_kinds == a_other.m_kinds;
    }
    bool IsEmpty() const override { return m_address.isEmpty(); }
    std::string_view Name( PimContactVersion /*a_version*/ ) const override { return "EMAIL"; }
    void Write( FieldWriter& a_writer ) const override;

    QString m_address;
    QString m_name;
};

const MailData& DataOf( const PimContactMail& a_mail )
{
    return PimContactFieldPrivate::DataOf<MailData>( a_mail );
}

MailData& ChangedDataOf( PimContactMail& a_mail )
{
    return PimContactFieldPrivate::ChangedDataOf<MailData>( a_mail );
}

// RFC 5322, section 3.4.
void MailData::Write( FieldWriter& a_writer ) const
{
    QString name = m_name;
    name.replace( QLatin1Char( '\\' ), QStringLiteral( "\\\\" ) )
        .replace( QLatin1Char( '"' ), QStringLiteral( "\\\"" ) );
    a_writer.SetText( name.isEmpty() ? m_address : QStringLiteral( "\"%1\" <%2>" ).arg( name, m_address ) );
}

} // namespace

PimContactFieldPrivate* ReadMail( FieldReader& a_reader )
{
    QByteArray buffer;
    const MailParts parts = MailPartsOf( a_reader.Text(), buffer );
    if ( parts.m_address.empty() )
        return nullptr;
    auto* const data = new MailData;
    data->m_address = StringOf( parts.m_address );
    data->m_name = StringOf( parts.m_name );
    data->ReadKinds( a_reader );
    return data;
}

PimContactMail::PimContactMail() :
    PimContactMail( MailData::Null() )
{
}

PimContactMail::PimContactMail( const QString& a_address, PimContactKinds a_kinds ) :
    PimContactMail()
{
    MailData& data = ChangedDataOf( *this );
    data.m_address = a_address;
    data.m_kinds = a_kinds;
}

PimContactMail::PimContactMail( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QString PimContactMail::Address() const
{
    return DataOf( *this ).m_address;
}

void PimContactMail::SetAddress( const QString& a_address )
{
    ChangedDataOf( *this ).m_address = a_address;
}

QString PimContactMail::Name() const
{
    return DataOf( *this ).m_name;
}

PimContactKinds PimContactMail::Kinds() const
{
    return DataOf( *this ).m_kinds;
}

void PimContactMail::SetKinds( PimContactKinds a_kinds )
{
    ChangedDataOf( *this ).SetKinds( a_kinds );
}

PimContactList<PimContactMail> PimContactMail::Alternatives() const
{
    return AlternativesOf( *this );
}

} // namespace PimManager::Contacts
