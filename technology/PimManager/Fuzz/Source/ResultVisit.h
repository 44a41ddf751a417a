/// \file
/// Checks the objects of a result.

#pragma once

#include "Violation.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace PimManager::vCard
{
class PimVCard;
class PimVCardParameter;
class PimVCardProperty;
} // namespace PimManager::vCard

namespace PimManager::vCard::Fuzz
{

/// Visits results, checks that each object is complete, and collects every text in the order of the content line.
///
/// An object is complete if it has no null pointer, a name of name characters, a group of such names, at least one
/// value, parameter values that are not empty and whose quotes are closed, no control characters, and no END line in a
/// card. Each property is also printed, which reads both of its lists.
///
/// \code
/// ResultVisit visit;
/// visit.Visit( card );
/// Demand( visit.FirstViolation(), input );
/// \endcode
class ResultVisit
{
public:
    /// Each function may be called many times. The argument remains the caller's. Null is allowed, and is a violation.
    void Visit( const PimVCard* a_vCard );
    void Visit( const PimVCardProperty* a_property );
    void Visit( const PimVCardParameter* a_parameter );
    void VisitGroup( const QString& a_group );
    void VisitValues( const QList<QString>& a_values );
    /// The text between the quotes, with the closing quote.
    void VisitQuotedRest( const QString& a_text );

    /// Visits each element of a list of pointers.
    template <typename T>
    void VisitAll( const QList<T*>& a_list )
    {
        for ( const T* element : a_list )
            Visit( element );
    }

    /// \return the first violation. Empty if everything was complete.
    Violation FirstViolation() const { return m_violation; }

    /// \return group, name, parameters and values of each property, without the empty texts.
    QStringList Texts() const { return m_texts; }

private:
    void Expect( bool a_holds, const char* a_property, const QString& a_culprit );
    void Note( const QString& a_text );

    Violation m_violation;
    QStringList m_texts;
};

} // namespace PimManager::vCard::Fuzz
