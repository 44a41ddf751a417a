/// \file
/// The sample files in Data.

#pragma once

#include <QByteArray>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

/// \return the names of all samples without `.vcf`, such as `agent-deep`; never empty.
std::vector<std::string> SampleNames();

/// \return the bytes of a file of the folder, such as `agent-deep.vcf`. A test fails if it cannot be read.
QByteArray SampleFile( const std::string& a_name );

} // namespace PimManager::Contacts
