/// \file
/// What the parts of a contact are for, as people say it.

#pragma once

#include <PimManager/Contacts/PimContactDate.h>
#include <PimManager/Contacts/PimContactField.h>

#include <QString>
#include <QStringList>

namespace PimManager::Tools
{

/// \return what a field is for, a text for each thing: its label, its types, whether it is preferred, its language.
///         `CELL` is `mobile`. A long label is cut; the line that holds it says it in full. Not safe for HTML.
QStringList UsesOf( const Contacts::PimContactField& a_field );

/// \return the label of a field, or the beginning of a long one: many fields may have it. Needs the same time for every
///         length.
QString ShownLabel( const Contacts::PimContactField& a_field );

/// \return the name of a language, such as `German` for `de` and `German (Switzerland)` for `de-CH`; a code that is not
///         known as it is.
QString LanguageWords( const QString& a_code );

/// \return a date as people say it, such as `3 February 1985`, `3 February` or `3 February 1985, 10:22 UTC`; a text as
///         it is.
QString DateWords( const Contacts::PimContactDate& a_date );

} // namespace PimManager::Tools
