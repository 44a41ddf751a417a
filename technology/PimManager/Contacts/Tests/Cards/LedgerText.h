/// \file
/// What a ledger receives, as text, for tests of the classes that add to it.

#pragma once

#include "Cards/Ledger.h"
#include "Lines/LineScanner.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

/// \return the text with another byte instead of each a_from. In the rows of tests "/" is a line feed.
inline std::string Replaced( std::string a_text, char a_from, char a_to )
{
    std::replace( a_text.begin(), a_text.end(), a_from, a_to );
    return a_text;
}

/// A ledger that remembers its extents. All findings are kept.
class LedgerText
{
public:
    explicit LedgerText( bool a_hasExtentHandler = true, int a_mostDiagnostics = -1 )
    {
        m_ledger.Reset( a_mostDiagnostics );
        if ( a_hasExtentHandler )
            m_ledger.SetExtentHandler( [this]( const PimContactExtent& a_extent ) { Take( a_extent ); } );
    }
    Q_DISABLE_COPY( LedgerText )

    Ledger& Get() { return m_ledger; }
    const ReportData& Data() const { return m_ledger.Data(); }

    /// The kind of each extent, the number of its card if it has one, and its bytes; of many bytes their number.
    const std::string& Extents() const { return m_extents; }

    /// The name of each finding, its line, and its count if that is not 1.
    std::string Findings() const
    {
        std::string text;
        for ( const PimContactDiagnostic& finding : m_ledger.Data().m_diagnostics )
        {
            text += NameOf( finding.Code() ).data() + ( ' ' + std::to_string( finding.Line() ) );
            text += finding.Count() == 1 ? "; " : " x" + std::to_string( finding.Count() ) + "; ";
        }
        return text;
    }

private:
    void Take( const PimContactExtent& a_extent )
    {
        constexpr qint64 s_kShown = 100;
        m_extents += NameOf( a_extent.Kind() ).data() + std::string( " " );
        if ( a_extent.Card() > 0 )
            m_extents += std::to_string( a_extent.Card() ) + ' ';
        m_extents += a_extent.Length() > s_kShown ? std::to_string( a_extent.Length() ) + " bytes"
                                                  : Replaced( a_extent.Bytes().toStdString(), '\n', '/' );
        m_extents += "; ";
    }

    Ledger m_ledger;
    std::string m_extents;
};

/// Appends a whole text to a scanner. "/" is a line feed.
inline void AppendAll( LineScanner& a_scanner, const std::string& a_text )
{
    a_scanner.Append( Replaced( a_text, '/', '\n' ) );
    a_scanner.Finish();
}

} // namespace PimManager::Contacts
