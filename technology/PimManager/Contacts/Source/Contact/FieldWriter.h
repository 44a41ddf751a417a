/// \file
/// Writes a content line.

#pragma once

#include "Contact/VersionWords.h"
#include "Lines/PropertyTable.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <string_view>

namespace PimManager::Contacts
{

/// Builds one content line of a version, without folds and without the line ending. No text can end the line or a
/// parameter.
///
/// In 2.1, a value that is not ASCII or has line breaks is QUOTED-PRINTABLE in UTF-8. Control characters other than
/// tabs and line breaks are left out, because no version can express them. Parameters of 2.1 can contain neither quotes
/// nor line breaks, so a quote becomes an apostrophe and a line break a blank.
class FieldWriter
{
public:
    /// \param a_name the name of the property; must outlive the writer.
    FieldWriter( PimContactVersion a_version, std::string_view a_name );

    PimContactVersion Version() const { return m_version; }
    bool IsVersion( PimContactVersion a_version ) const { return m_version == a_version; }
    std::string_view Name() const { return m_name; }
    PropertyId Property() const { return m_property; }

    /// Adds a parameter. An empty value adds nothing.
    /// \param a_name such as `LANGUAGE`.
    void AddParameter( const char* a_name, const QString& a_value );
    /// Adds a parameter whose value is a list. Empty values are left out.
    void AddParameter( const char* a_name, const QStringList& a_values );
    /// Adds words of TYPE: in 2.1 one parameter for each, in the other versions a list.
    void AddTypes( const QStringList& a_words );

    /// Sets the value to a text, in which all delimiters are escaped.
    void SetText( const QString& a_text );
    /// Sets the value to a text whose commas and semicolons are not delimiters and are not escaped, such as a URI or a
    /// date.
    void SetPlain( const QString& a_value );
    /// Sets the value to one value of the property: a URI, the only element of a list, or a text.
    void SetSingle( const QString& a_value );
    /// Sets the value to texts between commas. Empty ones are left out.
    void SetList( const QStringList& a_texts );
    /// Sets the value to components between semicolons, each a list between commas. Trailing empty components are kept.
    void SetComponents( const QVector<QStringList>& a_components );
    /// Sets the value to bytes. \param a_mediaType such as `image/jpeg`; may be empty.
    void SetBytes( const QByteArray& a_bytes, const QString& a_mediaType );
    /// Adds the parameter for the media type of an address. \param a_mediaType may be empty.
    void AddMediaType( const QString& a_mediaType );

    /// True if the value was set and is not empty.
    bool HasValue() const { return !m_value.isEmpty(); }

    /// \param a_group may be empty.
    QByteArray Line( const QByteArray& a_group ) const;

private:
    class OldValue;

    void AppendParameterValue( const QByteArray& a_value );
    void SetTexts( const QVector<QStringList>& a_components, char a_delimiter );
    void SetEncoded( bool a_isEncoded );
    QString MediaSubtype( const QString& a_mediaType ) const;

    PimContactVersion m_version;
    std::string_view m_name;
    PropertyId m_property;
    bool m_isEncoded = false;
    QByteArray m_parameters;
    QByteArray m_value;
};

} // namespace PimManager::Contacts
