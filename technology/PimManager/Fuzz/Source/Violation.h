/// \file
/// Reports broken properties.

#pragma once

#include <QByteArray>
#include <QDebug>
#include <QString>

namespace PimManager::vCard::Fuzz
{

/// The broken property and the cause. Empty if the property holds.
using Violation = QString;

/// Formats a text, bytes or a list of texts for messages: in quotes, with unprintable characters escaped.
template <typename T>
QString Shown( const T& a_value )
{
    QString text;
    QDebug( &text ).nospace() << a_value;
    return text;
}

/// Does nothing if the violation is empty. Otherwise writes it and the input to standard error and aborts, which
/// libFuzzer treats as a crash.
///
/// \code
/// Demand( values.isEmpty() ? Violation( QStringLiteral( "there is at least one value" ) ) : Violation(), input );
/// \endcode
void Demand( const Violation& a_violation, const QByteArray& a_input );

} // namespace PimManager::vCard::Fuzz
