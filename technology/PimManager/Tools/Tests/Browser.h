/// \file
/// A real browser without a window, driven by its debugging pipe.

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QTemporaryDir>

namespace PimManager::Tools
{

/// Chromium with one page. Whatever it does not answer fails the test.
class Browser
{
public:
    Browser();
    ~Browser();
    Q_DISABLE_COPY( Browser )

    /// Of the window, in pixels. A phone also has a pen and no mouse.
    void SetSize( int a_width, int a_height, bool a_isPhone );

    /// As of a user who wants light letters on dark.
    void SetDark();

    void SetScriptsAllowed( bool a_areAllowed );

    /// Shows a file and waits until it is there with its pictures.
    void Open( const QByteArray& a_fileName );

    /// \return the value of an expression in the language of scripts.
    QJsonValue Evaluate( const QString& a_expression );

    /// Types into whatever has the focus.
    void Type( const QString& a_text );

    /// \return the window as PNG.
    QByteArray Screenshot();

    /// What the browser wrote on its console since it started, such as scripts that it did not let run.
    const QStringList& Complaints() const { return m_complaints; }

private:
    QJsonObject Call( const QString& a_method, const QJsonObject& a_parameters = QJsonObject() );
    void Send( const QJsonObject& a_message );
    QJsonObject Receive();
    void Notice( const QJsonObject& a_message );

    QTemporaryDir m_profile;
    int m_child = -1;
    int m_commands = -1;
    int m_answers = -1;
    int m_id = 0;
    bool m_isLoaded = false;
    QString m_session;
    QByteArray m_received;
    QStringList m_complaints;
};

} // namespace PimManager::Tools
