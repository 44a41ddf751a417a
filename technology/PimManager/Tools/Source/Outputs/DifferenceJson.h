/// \file
/// Differences between address books as JSON.

#pragma once

#include "Outputs/DifferenceWriter.h"

#include <PimManager/Contacts/PimContactJson.h>

#include <QByteArray>

class QIODevice;

namespace PimManager::Tools
{

/// Writes each difference as an object on a line of its own, in the format of docs/man/pimvcard.1.
class DifferenceJson : public DifferenceWriter
{
public:
    /// \param a_device must be open and exist as long as the writer.
    explicit DifferenceJson( QIODevice& a_device );

    void Begin( const QString& a_oldSource, const QString& a_newSource ) override;
    void WriteRemoved( const Contacts::PimContactCard& a_card ) override;
    void WriteAdded( const Contacts::PimContactCard& a_card ) override;
    void WriteChanged( const ChangedContact& a_contact ) override;

private:
    void Start( const char* a_change );
    void AppendCard( const char* a_member, Contacts::PimContactJson& a_json, const Contacts::PimContactCard& a_card );
    void AppendText( const char* a_member, const char* a_text );
    void AppendIndices( const char* a_member, const Contacts::PimContactCard& a_card,
                        const QList<Contacts::PimContactLine>& a_lines );
    void Finish();

    QIODevice& m_device;
    Contacts::PimContactJson m_old;
    Contacts::PimContactJson m_new;
    QByteArray m_buffer;
};

} // namespace PimManager::Tools
