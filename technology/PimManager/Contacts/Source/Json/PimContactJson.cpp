#include <PimManager/Contacts/PimContactJson.h>

#include "Json/CardJson.h"

namespace PimManager::Contacts
{

class PimContactJsonPrivate
{
public:
    QString m_fileName;
    // In UTF-8.
    QByteArray m_file;
    CardJson m_writer;
};

PimContactJson::PimContactJson() :
    d( std::make_unique<PimContactJsonPrivate>() )
{
}

PimContactJson::PimContactJson( PimContactJson&& a_other ) noexcept = default;
PimContactJson& PimContactJson::operator=( PimContactJson&& a_other ) noexcept = default;
PimContactJson::~PimContactJson() = default;

QString PimContactJson::File() const
{
    return d->m_fileName;
}

void PimContactJson::SetFile( const QString& a_name )
{
    d->m_fileName = a_name;
    d->m_file = a_name.isNull() ? QByteArray() : a_name.toUtf8();
}

void PimContactJson::Append( const PimContactCard& a_card, QByteArray& a_out )
{
    JsonText json( a_out );
    d->m_writer.Write( a_card, d->m_file, json );
    json.Finish();
}

QByteArray PimContactJson::Of( const PimContactCard& a_card )
{
    QByteArray text;
    PimContactJson().Append( a_card, text );
    text.squeeze();
    return text;
}

} // namespace PimManager::Contacts
