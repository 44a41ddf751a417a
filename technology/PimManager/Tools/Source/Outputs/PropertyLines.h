/// \file
/// Properties below each other, in columns.

#pragma once

#include "Outputs/PropertyText.h"
#include "Terminal/Screen.h"

#include <QString>
#include <QStringList>

#include <vector>

class QIODevice;

namespace PimManager::Tools
{

/// Writes properties with their names, remarks and values in columns:
///
///     TEL   boat phone  +1-555-0102
///     ADR   home        3 Weir Lane
///                       FN1 2AB Ouse Mouth
///
/// A name with remarks that is too wide for its columns is on a line of its own. On a terminal, everything is wrapped
/// into its width.
class PropertyLines
{
public:
    /// \param a_device must be open and exist as long as the object.
    /// \param a_texts  the properties that will be written.
    /// \param a_indent the column that they begin in; less on a narrow terminal.
    PropertyLines( QIODevice& a_device, const Screen& a_screen, const std::vector<PropertyText>& a_texts,
                   int a_indent );

    /// \param a_mark stands before the property, with a blank between them; may be empty.
    void Write( const PropertyText& a_text, const QString& a_mark = QString() ) const;

private:
    void FindColumns( const std::vector<PropertyText>& a_texts );
    QString Start( const QString& a_mark ) const;
    void WriteHead( const QString& a_start, const QString& a_text ) const;
    QStringList Wrap( const QStringList& a_lines, int a_column ) const;
    void WriteLine( const QString& a_text ) const;

    QIODevice& m_device;
    const Screen m_screen;
    int m_indent = 0;
    int m_value = 0;
    int m_remarks = 0;
};

} // namespace PimManager::Tools
