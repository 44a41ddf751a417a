/// \file
/// How cards leave the program.

#pragma once

#include <QString>

namespace PimManager::vCard
{
class PimVCard;
}

namespace PimManager::vCard::Tools
{

/// Writes cards one by one, in one format.
class CardWriter
{
public:
    CardWriter() = default;
    virtual ~CardWriter() = default;
    Q_DISABLE_COPY( CardWriter )

    /// Comes before the first card, also when there will be none.
    virtual void Begin() {}

    /// \param a_number the number of the card in its file, from 1.
    /// \param a_source the name of the file, safe for a terminal.
    virtual void Write( const PimVCard& a_card, qint64 a_number, const QString& a_source ) = 0;

    /// Comes after the last card.
    virtual void End() {}
};

} // namespace PimManager::vCard::Tools
