/// \file
/// What `pimvcard check --extents` prints.

#pragma once

#include "CheckOutput.h"

#include <PimManager/Contacts/PimContactExtent.h>

#include <QByteArray>

class QIODevice;

namespace PimManager::vCard::Tools
{

/// Writes one line for each extent, from byte 0 to the end of the file: offset, length, kind and card, separated by
/// single blanks. The line `converted UTF-16LE` or `converted UTF-16BE` precedes the extents of a converted file. The
/// line `file NAME` precedes everything about a file if there are several.
///
///     file book.vcf
///     0 13 boundary 1
///     13 13 line 1
class ExtentList : public CheckOutput
{
public:
    /// \param a_device   must be open and outlive the list.
    /// \param a_areNamed true if there are several files.
    ExtentList( QIODevice& a_device, bool a_areNamed );

    void BeginBook( const QString& a_source, Contacts::PimContactReader& a_reader ) override;
    void EndBook( const Contacts::PimContactReport& a_report, bool a_isReadToEnd ) override;

private:
    void Write( const Contacts::PimContactExtent& a_extent );

    QIODevice& m_device;
    const bool m_areNamed;
    QByteArray m_line;
};

} // namespace PimManager::vCard::Tools
