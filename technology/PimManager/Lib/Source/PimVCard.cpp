#include "PimVCard.h"

#include "PimVCardOwnedList.h"

#include <QDebug>

#include <utility>

namespace PimManager::vCard
{

namespace
{

template <typename T>
QList<T> CopyOf( const QList<T>* a_list )
{
    return a_list != nullptr ? *a_list : QList<T>();
}

} // namespace

PimVCardParameter::PimVCardParameter( const QString& a_name, const QString& a_value ) :
    m_value( a_value ),
    m_name( a_name )
{
}

PimVCardParameter::~PimVCardParameter() = default;

QString PimVCardParameter::GetName() const
{
    return m_name;
}

QString PimVCardParameter::GetValue() const
{
    return m_value;
}

void PimVCardParameter::Print( const char* a_prefix ) const
{
    qDebug() << a_prefix << "PimVCardParameter:";
    qDebug() << a_prefix << "Name:  " << m_name;
    qDebug() << a_prefix << "Value: " << m_value;
}

PimVCardProperty::PimVCardProperty( const QString& a_groupID, const QString& a_name,
                                    QList<PimVCardParameter*>* a_parameters, QList<QString>* a_values ) :
    m_groupID( a_groupID ),
    m_name( a_name ),
    m_parameters( a_parameters ),
    m_values( a_values )
{
}

PimVCardProperty::~PimVCardProperty()
{
    DeleteOwnedList( m_parameters );
    delete m_values;
}

QString PimVCardProperty::GetGroupID() const
{
    return m_groupID;
}

QString PimVCardProperty::GetName() const
{
    return m_name;
}

QList<PimVCardParameter*> PimVCardProperty::GetParameters() const
{
    return CopyOf( m_parameters );
}

QList<QString> PimVCardProperty::GetValues() const
{
    return CopyOf( m_values );
}

void PimVCardProperty::Print( const char* a_prefix ) const
{
    qDebug() << a_prefix << "PimVCardProperty:";
    qDebug() << a_prefix << "Group: " << m_groupID;
    qDebug() << a_prefix << "Name:  " << m_name;
    for ( const PimVCardParameter* parameter : std::as_const( *m_parameters ) )
        parameter->Print( a_prefix );
    qDebug() << a_prefix << "Values:";
    for ( const QString& value : std::as_const( *m_values ) )
        qDebug() << a_prefix << a_prefix << value;
}

PimVCard::PimVCard( QList<PimVCardProperty*>* a_properties ) :
    m_properties( a_properties )
{
}

PimVCard::~PimVCard()
{
    DeleteOwnedList( m_properties );
}

QList<PimVCardProperty*> PimVCard::GetProperties() const
{
    return CopyOf( m_properties );
}

} // namespace PimManager::vCard
