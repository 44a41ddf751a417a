/// \file
/// The threads of all loaders.

#pragma once

#include <memory>

namespace PimManager::PhoneBook
{

class LoaderJob;

/// Does a job in a thread of its own, without waiting for it. The destructor of QCoreApplication cancels all jobs and
/// waits for their threads, but at most three seconds for each.
void StartLoaderThread( const std::shared_ptr<LoaderJob>& a_job );

} // namespace PimManager::PhoneBook
