/// \file
/// What `pimvcard check --extents` prints.

#pragma once

#include "Outputs/BookOutput.h"

#include <PimManager/Contacts/PimContactExtent.h>

#include <QByteArray>

class QIODevice;

namespace PimManager::Tools
{

/// Writes one line for each extent, from byte 0 to the end of the file: offset, length, kind and card, separated by
/// single blanks. The line `converted UTF-16LE` or `converted UTF-16BE` precedes the extents of a converted file. The
/// line `file NAME` precedes everything about a file if there are several.
///
///     file book.vcf
///     0 13 boundary 1
///     13 13 line 1
class ExtentList : public BookOutput
{
public:
    /// \param a_device   must be open and outlive the list.
    /// \param a_areNamed true if there are several files.
    ExtentList( QIODevice& a_device, bool a_areNamed );

    bool WantsExtents() const override { return true; }
    void BeginBook( const BookInRun& a_book, const Contacts::PimContactReader& a_reader ) override;
    void TakeExtent( const BookInRun& a_book, const Contacts::PimContactExtent& a_extent ) override;

private:
    void Write( const Contacts::PimContactExtent& a_extent );

    QIODevice& m_device;
    const bool m_areNamed;
    const Contacts::PimContactReader* m_reader = nullptr;
    QByteArray m_line;
};

} // namespace PimManager::Tools
