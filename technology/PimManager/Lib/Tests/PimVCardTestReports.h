/// \file
/// Reads error reports from the log for the unit tests: the log as blocks, each with the content of its lines.

#pragma once

#include "PimVCardTestLog.h"

#include <QRegularExpression>

#include <ostream>
#include <string>
#include <vector>

namespace PimManager::vCard
{

/// One block of the log, from its heading to its empty critical message.
struct Report
{
    std::string m_label;
    std::string m_message;
    /// The expression that the status dump shows, with the quotes and escapes of the log. Empty if it shows none.
    std::string m_pattern = {};
    /// The illegal character as the log shows it, in its single quotes. Empty if there is no such line.
    std::string m_illegal = {};
    /// True if a property was printed.
    bool m_hasProperty = false;

    bool operator==( const Report& a_other ) const
    {
        return m_label == a_other.m_label && m_message == a_other.m_message && m_pattern == a_other.m_pattern &&
               m_illegal == a_other.m_illegal && m_hasProperty == a_other.m_hasProperty;
    }
};

inline std::ostream& operator<<( std::ostream& a_stream, const Report& a_report )
{
    a_stream << '\n' << a_report.m_label << " \"" << a_report.m_message << '"';
    if ( !a_report.m_pattern.empty() )
        a_stream << ", pattern " << a_report.m_pattern;
    if ( !a_report.m_illegal.empty() )
        a_stream << ", illegal " << a_report.m_illegal;
    return a_stream << ( a_report.m_hasProperty ? ", with a property" : "" );
}

/// The part of a message that follows a heading. Empty if the message does not begin with the heading.
inline std::string TextBehind( const QString& a_heading, const LogMessage& a_message )
{
    return a_message.m_text.startsWith( a_heading ) ? a_message.m_text.mid( a_heading.size() ).toStdString() : "";
}

/// Records what a message says about the report to which it belongs.
/// \return false for a critical message that does not belong to a report.
inline bool AddToReport( Report& a_report, const LogMessage& a_message )
{
    if ( a_message.m_type == QtCriticalMsg )
    {
        a_report.m_illegal += TextBehind( QStringLiteral( "   Illegal Character: " ), a_message );
        return !a_report.m_illegal.empty() || a_message.m_text.isEmpty();
    }
    a_report.m_pattern += TextBehind( QStringLiteral( "Regex:              " ), a_message );
    a_report.m_hasProperty |= a_message.m_text == QStringLiteral( "   PimVCardProperty:" );
    return true;
}

/// The reports in the log, in order. A critical message that belongs to no report appears as a report without a label.
inline std::vector<Report> ReportsOf( const LogCapture& a_log )
{
    static const QRegularExpression heading( QStringLiteral( R"x(\AError in "([^"]*)" ->\n  "([^"]*)"\z)x" ) );
    std::vector<Report> reports( 1 );
    for ( const LogMessage& message : a_log.Messages() )
    {
        const QRegularExpressionMatch match = heading.match( message.m_text );
        if ( message.m_type == QtCriticalMsg && match.hasMatch() )
            reports.push_back( { match.captured( 1 ).toStdString(), match.captured( 2 ).toStdString() } );
        else if ( !AddToReport( reports.back(), message ) )
            reports.push_back( { "", message.m_text.toStdString() } );
    }
    reports.erase( reports.begin() );
    return reports;
}

/// The line numbers that the status dumps of the log show, in order.
inline std::vector<int> LineNumbersOf( const LogCapture& a_log )
{
    std::vector<int> numbers;
    for ( const LogMessage& message : a_log.Messages() )
    {
        const std::string number = TextBehind( QStringLiteral( "Line Number:         " ), message );
        if ( !number.empty() )
            numbers.push_back( std::stoi( number ) );
    }
    return numbers;
}

/// The whole log as one text. Each message is on its own line, after its type: `debug|Line Number:         1`.
inline std::string TextOf( const LogCapture& a_log )
{
    std::string text;
    for ( const LogMessage& message : a_log.Messages() )
    {
        text += message.m_type == QtCriticalMsg ? "critical" : message.m_type == QtDebugMsg ? "debug" : "other";
        if ( message.m_category != "default" )
            text += " of " + message.m_category.toStdString();
        text += '|' + message.m_text.toStdString() + '\n';
    }
    return text;
}

} // namespace PimManager::vCard
