/// \file
/// The work of the thread of a loader.

#pragma once

#include "Loader/LoaderJob.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactReader.h>

#include <QString>

#include <optional>

class QIODevice;

namespace PimManager::PhoneBook
{

/// Reads one address book.
class LoaderWork
{
public:
    explicit LoaderWork( LoaderJob& a_job );

    /// Returns after the last news were told, or soon after the job was cancelled.
    void Run();

private:
    QString ReadDevice();
    QString ReadPieces( QIODevice& a_device );
    bool TakeCard( const Contacts::PimContactCard& a_card );
    bool IsGrowing() const;
    PimPhoneBook MakePhoneBook() const;
    std::optional<LoaderBook> Result( bool a_isWhole ) const;

    LoaderJob& m_job;
    Contacts::PimContactReader m_reader;
    Contacts::PimContactBook m_book;
    int m_nextSize;
};

} // namespace PimManager::PhoneBook
