/// \file
/// One import, from its first byte to its account.

#pragma once

#include "PimVCardCardCutter.h"
#include "PimVCardCardMender.h"
#include "PimVCardCardParser.h"
#include "PimVCardImporter.h"
#include "PimVCardLineCutter.h"
#include "PimVCardReporter.h"
#include "PimVCardTextDecoder.h"

namespace PimManager::vCardImport
{

/// The road of one text: decoder, line cutter, card cutter, mender, parser.
class PimVCardImportRun
{
public:
    struct Handlers
    {
        PimVCardImporter::CardHandler m_card;
        PimVCardImporter::RejectHandler m_reject;
        PimVCardImporter::DiagnosticHandler m_diagnostic;
    };

    PimVCardImportRun( const PimVCardImportOptions& a_options, const Handlers& a_handlers );
    Q_DISABLE_COPY( PimVCardImportRun )

    bool Feed( const QByteArray& a_piece );
    PimVCardImportAccount Finish();
    const PimVCardImportAccount& Account() const { return m_account; }

private:
    void FeedText( const QByteArray& a_text );
    void Begin();
    void TakeLines();
    void TakeLine( const PimVCardPhysicalLine& a_line );
    void CountLineEnd( const PimVCardPhysicalLine& a_line );
    void TakeCard( PimVCardRawCard& a_card );
    bool IsWithinLimits( const PimVCardRawCard& a_card ) const;
    void RefuseCard( const PimVCardRawCard& a_card );
    bool DeliverCard( PimVCardImportedCard a_card ) const;
    bool IsStopped() const { return m_parser.IsStopped(); }

    PimVCardImportOptions m_options;
    Handlers m_handlers;
    PimVCardImportAccount m_account;
    PimVCardReporter m_reporter;
    PimVCardTextDecoder m_decoder;
    PimVCardLineCutter m_lineCutter;
    PimVCardCardMender m_mender;
    PimVCardCardParser m_parser;
    PimVCardCardCutter m_cardCutter;
    bool m_isBegun = false;
    qint64 m_cards = 0;
};

} // namespace PimManager::vCardImport
