/// \file
/// From mended cards to objects, by the component.

#pragma once

#include "PimVCardImporter.h"
#include "PimVCardMendedCard.h"
#include "PimVCardReporter.h"

#include <functional>
#include <memory>
#include <vector>

namespace PimManager::vCardImport
{

/// Hands cards to the component in runs, puts the real properties in the place of stand-ins, and gives the cards on in
/// order. A card that the component refuses is parsed again alone, then line by line; the cards behind it get another
/// parser.
class PimVCardCardParser
{
public:
    /// Takes a card. \return false to stop.
    using CardTaker = std::function<bool( PimVCardImportedCard a_card )>;

    PimVCardCardParser( PimVCardReporter& a_reporter, const CardTaker& a_taker );

    void Add( PimVCardMendedCard a_card );

    /// Parses what was added and gives it on.
    void Flush();

    /// The taker said stop: nothing is parsed any more.
    bool IsStopped() const { return m_isStopped; }

private:
    using Properties = QList<vCard::PimVCardProperty*>;

    struct Waiting
    {
        PimVCardMendedCard m_card;
        int m_begin = 0;
        int m_length = 0;
    };

    size_t ParseRun( size_t a_first );
    void ParseAlone( Waiting& a_waiting );
    std::unique_ptr<vCard::PimVCard> ParseLines( Waiting& a_waiting );
    static std::unique_ptr<vCard::PimVCard> WithRealProperties( std::unique_ptr<vCard::PimVCard> a_card,
                                                                const PimVCardMendedCard& a_mended );
    QByteArray TextOf( const Waiting& a_waiting ) const;
    void Deliver( std::unique_ptr<vCard::PimVCard> a_card, PimVCardMendedCard& a_mended );
    void Refuse( const Waiting& a_waiting );
    void CountVersion( const vCard::PimVCard& a_card );

    PimVCardReporter& m_reporter;
    CardTaker m_taker;
    QByteArray m_text;
    std::vector<Waiting> m_waiting;
    bool m_isStopped = false;
};

} // namespace PimManager::vCardImport
