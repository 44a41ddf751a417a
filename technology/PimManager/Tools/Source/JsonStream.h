/// \file
/// JSON, written as it comes.

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

class QIODevice;

namespace PimManager::vCard::Tools
{

/// \return the text as it stands between the quotes of a JSON string. What a terminal must not see is escaped, so JSON
///         can be looked at; half of a surrogate pair, which many readers of JSON refuse, becomes U+FFFD.
QString ToJsonText( QStringView a_text );

/// Writes one JSON document without blanks and line breaks. Commas come by themselves; that what is begun is ended is
/// for the caller.
///
/// \code
/// JsonStream json( device );
/// json.BeginObject();
/// json.Member( "name", name );
/// json.EndObject();
/// \endcode
class JsonStream
{
public:
    /// \param a_device must be open and outlive the stream.
    explicit JsonStream( QIODevice& a_device );

    void BeginObject();
    void EndObject();
    void BeginList();
    void EndList();

    /// The name of the next member. \param a_name in ASCII, without quotes and backslashes.
    void Name( const char* a_name );

    void Text( const QString& a_text );
    void Number( qint64 a_number );
    void Truth( bool a_isTrue );
    /// A text of ASCII without anything to escape, such as BASE64.
    void PlainText( const QByteArray& a_text );

    void Member( const char* a_name, const QString& a_text );
    void Member( const char* a_name, const QStringList& a_texts );
    void Member( const char* a_name, qint64 a_number );

private:
    void BeginValue();
    void Begin( char a_bracket );
    void End( char a_bracket );

    QIODevice& m_device;
    bool m_needsComma = false;
};

} // namespace PimManager::vCard::Tools
