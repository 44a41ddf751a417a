/// \file
/// How a broken property is told.

#pragma once

#include <QByteArray>
#include <QDebug>
#include <QString>

namespace PimManager::vCard::Fuzz
{

/// Which property is broken, and by what; empty when it holds.
using Violation = QString;

/// A text, bytes or a list of texts for a reader: in quotes, with everything escaped that does not print.
template <typename T>
QString Shown( const T& a_value )
{
    QString text;
    QDebug( &text ).nospace() << a_value;
    return text;
}

/// Goes on when the violation is empty. Else writes it and the input to standard error and aborts, which libFuzzer
/// takes for a crash.
///
/// \code
/// Demand( values.isEmpty() ? Violation( QStringLiteral( "there is at least one value" ) ) : Violation(), input );
/// \endcode
void Demand( const Violation& a_violation, const QByteArray& a_input );

} // namespace PimManager::vCard::Fuzz
