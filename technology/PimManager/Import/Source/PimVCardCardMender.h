/// \file
/// From a card as it was found to one that the component reads.

#pragma once

#include "PimVCardImportOptions.h"
#include "PimVCardLogicalLine.h"
#include "PimVCardMendedCard.h"
#include "PimVCardRawCard.h"
#include "PimVCardReporter.h"

class QTextCodec;

namespace PimManager::vCardImport
{

/// Mends one card after the other. Nothing of a card reaches the next one.
class PimVCardCardMender
{
public:
    PimVCardCardMender( PimVCardReporter& a_reporter, const PimVCardImportOptions& a_options );

    PimVCardMendedCard Mend( const PimVCardRawCard& a_card );

private:
    enum class Fate
    {
        Delivered,
        Dropped,
        Filtered,
    };

    using Code = PimVCardDiagnosticCode;

    void ReportBounds();
    void DecideCharset();
    QTextCodec* CodecFor( const QByteArray& a_text ) const;
    Fate MendLine( const PimVCardLogicalLine& a_line );
    bool IsWanted( const QByteArray& a_text ) const;
    bool IsWithinLimits( const PimVCardLogicalLine& a_line );
    QByteArray DecodedText( const PimVCardLogicalLine& a_line );
    QByteArray WithoutControls( const PimVCardLogicalLine& a_line, const QByteArray& a_text );
    QByteArray WithoutDanglingBreak( const PimVCardLogicalLine& a_line, const QByteArray& a_text );
    void AddCleanProperty( const PimVCardLogicalLine& a_line, const QByteArray& a_text );
    void AddProperty( const PimVCardLogicalLine& a_line, const QByteArray& a_text );
    QByteArray NestedText( const PimVCardLogicalLine& a_line );
    void ReportJoins( const PimVCardLogicalLine& a_line );
    void Drop( const PimVCardLogicalLine& a_line, Code a_code );
    QByteArray RawBytesOf( const PimVCardLogicalLine& a_line ) const;
    void Report( Code a_code, const PimVCardLogicalLine& a_line, int a_place = 0, qint64 a_count = 1 );
    void Count( const std::vector<Fate>& a_fates );
    qint64& CounterOf( Fate a_fate );

    PimVCardReporter& m_reporter;
    const PimVCardImportOptions m_options;

    // The card at work.
    const PimVCardRawCard* m_card = nullptr;
    PimVCardLogicalLines m_lines;
    PimVCardMendedCard m_mended;
    QTextCodec* m_cardCodec = nullptr;
    bool m_isUtf8 = true;
    int m_replaced = 0;
};

} // namespace PimManager::vCardImport
