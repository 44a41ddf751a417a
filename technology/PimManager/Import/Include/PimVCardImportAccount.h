/// \file
/// The account of an import: what became of every card and every line.
///
/// \code
/// if ( account.m_cardsRefused + account.m_linesDropped > 0 )
///     qWarning() << account.m_cardsRefused << "cards and" << account.m_linesDropped << "lines are missing";
/// \endcode

#pragma once

#include "PimVCardDiagnostic.h"
#include "PimVCardExport.h"

#include <QByteArray>
#include <QList>

#include <array>

namespace PimManager::vCardImport
{

/// How the encoding of the file was decided.
enum class PimVCardEvidence
{
    None,          ///< the text is ASCII
    ByteOrderMark, ///< at the start of the file
    NulPattern,    ///< every other one of the first bytes is zero, as in UTF-16
    ValidUtf8,     ///< all cards are valid UTF-8
    CharsetNamed,  ///< at least one card is not, and a CHARSET parameter in it was believed
    Default,       ///< at least one card is not, and was read in the caller's character set
};

/// Each BEGIN line and each physical line is counted once. The counts are valid at any time, also after an import that
/// was stopped; AddsUp() holds whenever no card is open: after Finish(), or when an Import() has returned.
struct PIMVCARD_EXPORT PimVCardImportAccount
{
    /// Bytes read.
    qint64 m_bytes = 0;

    /// BEGIN lines found, wherever they stood.
    qint64 m_beginLines = 0;
    /// Cards delivered with everything that they hold. Mended lines do not make a card less whole, and lines that the
    /// caller's filter leaves out do not either.
    qint64 m_cardsWhole = 0;
    /// Cards delivered, of which a line or a value was dropped, or whose END is missing.
    qint64 m_cardsInPart = 0;
    /// Cards left out.
    qint64 m_cardsRefused = 0;
    /// Cards kept with their outer card, as the text of its property, or left out with it.
    qint64 m_cardsNested = 0;

    /// Physical lines. A file's last line counts also without a line end; an empty rest behind the last line end does
    /// not.
    qint64 m_lines = 0;
    /// Of delivered properties, with their continuation lines, and what nested cards consist of.
    qint64 m_linesDelivered = 0;
    /// BEGIN and END lines of delivered cards.
    qint64 m_linesBoundary = 0;
    /// Of dropped properties; handed over as PimVCardReject.
    qint64 m_linesDropped = 0;
    /// Of refused cards; handed over as PimVCardReject.
    qint64 m_linesRefused = 0;
    /// Of properties that the caller's filter left out.
    qint64 m_linesFiltered = 0;
    /// Empty, or nothing but white space, inside cards and outside.
    qint64 m_linesBlank = 0;
    /// Outside cards.
    qint64 m_linesOutside = 0;

    /// Lines that end in CR LF, as found.
    qint64 m_crLfs = 0;
    /// Lines that end in LF.
    qint64 m_lfs = 0;
    /// Lines that end in CR.
    qint64 m_crs = 0;
    /// Lines that end in CR CR LF, which counts as one line end.
    qint64 m_crCrLfs = 0;

    /// The character set of the file: `UTF-8`, `UTF-16LE` or `UTF-16BE`, or that of the first card that is in none of
    /// these. Never empty.
    QByteArray m_charset = QByteArrayLiteral( "UTF-8" );
    /// How the character set was decided.
    PimVCardEvidence m_evidence = PimVCardEvidence::None;
    /// Characters that could not be read and became U+FFFD.
    qint64 m_charactersReplaced = 0;

    /// How many cards say that they are of version 2.1.
    qint64 m_version21 = 0;
    /// The same for 3.0.
    qint64 m_version30 = 0;
    /// The same for 4.0.
    qint64 m_version40 = 0;
    /// How many name another version, or none.
    qint64 m_versionOther = 0;

    /// The handler said stop. What follows the place was not read.
    bool m_isStopped = false;

    /// The findings in the order in which they were made, at most as many as the limit.
    QList<PimVCardDiagnostic> m_diagnostics;
    /// All findings by code, those that were not kept included. The index is the code.
    std::array<qint64, s_kDiagnosticCodes> m_findings = {};

    /// \return how many findings of a code were made, kept or not.
    qint64 Findings( PimVCardDiagnosticCode a_code ) const;

    /// \return how many findings of a severity were made, kept or not.
    qint64 Findings( PimVCardSeverity a_severity ) const;

    /// \return true if every BEGIN line and every physical line is accounted for once: BEGIN lines are the cards
    ///         delivered whole, delivered in part, refused and nested; lines are those delivered, of boundaries,
    ///         dropped, refused, filtered, blank and outside.
    bool AddsUp() const;
};

/// A card or a line that was left out, as it came.
struct PimVCardReject
{
    /// The code of the diagnostic that says why.
    PimVCardDiagnosticCode m_reason = PimVCardDiagnosticCode::NotAProperty;
    /// As in PimVCardDiagnostic.
    qint64 m_card = -1;
    /// Where it starts.
    PimVCardPosition m_position;
    /// The bytes with their line ends, in the encoding in which they came; of a UTF-16 file in UTF-8. Of a card that is
    /// longer than the limit a piece of it: the rest follows in rejects of their own.
    QByteArray m_bytes;
};

} // namespace PimManager::vCardImport
