/// \file
/// What a command does with the files that a BookRun opens.

#pragma once

#include "ExitStatus.h"

#include <QString>

namespace PimManager::Tools
{

class InputDevice;

/// Reads files. BookRun calls the functions in their order, once for each file that can be opened.
class BookTask
{
public:
    BookTask() = default;
    virtual ~BookTask() = default;
    Q_DISABLE_COPY( BookTask )

    /// \param a_source how to call the file; safe for a terminal.
    virtual void BeginBook( const QString& a_source ) = 0;

    /// Reads the file to its end, or as far as it is wanted. May throw std::bad_alloc.
    virtual void ReadBook( InputDevice& a_input ) = 0;

    /// Called also if the file could be read only in part.
    /// \return the exit status for what was read.
    virtual ExitStatus EndBook() = 0;
};

} // namespace PimManager::Tools
