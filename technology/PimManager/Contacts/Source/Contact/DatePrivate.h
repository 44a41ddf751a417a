/// \file
/// The data of PimContactDate, and its creation from a value.

#pragma once

#include "Contact/DateFields.h"
#include "Contact/DateParser.h"

#include <PimManager/Contacts/PimContactDate.h>

#include <QSharedData>
#include <QString>

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// Valid fields, or a text, or neither.
class PimContactDatePrivate : public QSharedData
{
public:
    explicit PimContactDatePrivate( const DateFields& a_fields ) :
        m_fields( a_fields )
    {
    }
    explicit PimContactDatePrivate( const QString& a_text ) :
        m_text( a_text )
    {
    }

    /// The data of a date. A null date has none of its own.
    static const PimContactDatePrivate& Of( const PimContactDate& a_date );

    /// \param a_text a decoded value in UTF-8.
    /// \param a_omittedYear the value of X-APPLE-OMIT-YEAR. This year means that the year is unknown.
    /// \return the date, or a text if it is not a date. Null if there is only white space.
    static PimContactDate Read( std::string_view a_text, DateHint a_hint = DateHint::Any,
                                const std::optional<int>& a_omittedYear = std::nullopt );

    /// \return a null date if the fields are not valid.
    static PimContactDate Make( const DateFields& a_fields );

    static const DateFields& FieldsOf( const PimContactDate& a_date ) { return Of( a_date ).m_fields; }

    const DateFields m_fields;
    const QString m_text;
};

} // namespace PimManager::Contacts
