/// \file
/// Properties of every reading, for any bytes and options. Tests and fuzzers check them.

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>

#include <QByteArray>

namespace PimManager::Contacts::Checks
{

/// Reads the bytes in several ways and checks everything that the reader returns. The headers of the checks list the
/// properties.
/// \param a_seed determines where pieces end and what is inserted.
/// \return the first broken property in English; empty if all hold.
QByteArray BrokenInvariantOf( const QByteArray& a_bytes, const PimContactOptions& a_options, unsigned a_seed );

} // namespace PimManager::Contacts::Checks
