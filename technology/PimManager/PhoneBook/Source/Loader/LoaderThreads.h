/// \file
/// The threads of all loaders.

#pragma once

#include <memory>

namespace PimManager::PhoneBook
{

class LoaderJob;

/// Does a job in a thread of its own, without waiting for it. When the program ends or the library is unloaded, all
/// jobs are cancelled and waited for.
void StartLoaderThread( const std::shared_ptr<LoaderJob>& a_job );

} // namespace PimManager::PhoneBook
