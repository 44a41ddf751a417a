/// \file
/// The layout of help.

#pragma once

#include "Terminal/Screen.h"

#include <QList>
#include <QString>

namespace PimManager::Tools
{

/// Puts help together, wrapped into a terminal; into 79 columns if there is none.
class HelpText
{
public:
    /// A name, such as that of an option, and what it means.
    struct Row
    {
        QString m_name;
        QString m_text;
    };

    explicit HelpText( const Screen& a_screen );

    /// Adds lines of text. Each is wrapped.
    void AddText( const QString& a_text );

    /// Adds names with their meanings: in a second column, or on a narrow terminal in the lines below.
    void AddRows( const QList<Row>& a_rows );

    QString Text() const { return m_text; }

private:
    void AddWrapped( const QString& a_start, const QString& a_text, int a_indent );

    const int m_columns;
    QString m_text;
};

} // namespace PimManager::Tools
