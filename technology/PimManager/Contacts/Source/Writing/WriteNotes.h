/// \file
/// Collects the data of PimContactWriteReport.

#pragma once

#include <PimManager/Contacts/PimContactWriteReport.h>

#include <QSharedData>
#include <QSharedDataPointer>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// The data of PimContactWriteNote.
class PimContactWriteNotePrivate : public QSharedData
{
public:
    static PimContactWriteNote Create( const PimContactWriteNotePrivate& a_data );

    PimContactWriteCode m_code = PimContactWriteCode::NameAdded;
    qint64 m_contact = 0;
    int m_line = 0;
    QString m_property;
    QString m_detail;
};

/// The data of PimContactWriteReport.
class PimContactWriteReportPrivate : public QSharedData
{
public:
    static PimContactWriteReportPrivate& DataOf( PimContactWriteReport& a_report ) { return *a_report.d; }

    qint64 m_contacts = 0;
    QList<PimContactWriteNote> m_notes;
    std::array<qint64, s_kPimContactWriteCodes> m_counts = {};
    QString m_error;
};

/// Adds notes to a report.
class WriteNotes
{
public:
    explicit WriteNotes( int a_most ) :
        m_most( a_most )
    {
    }

    void BeginContact();
    /// Sets the line of the next notes.
    /// \param a_number from 1; 0 for the whole card.
    void SetLine( int a_number ) { m_line = a_number; }
    int Line() const { return m_line; }

    /// \param a_property the name as written; only letters, digits and hyphens.
    void Add( PimContactWriteCode a_code, std::string_view a_property = {}, std::string_view a_detail = {} );

    void SetError( const QString& a_text ) { PimContactWriteReportPrivate::DataOf( m_report ).m_error = a_text; }

    /// The number of things that were added.
    qint64 Count() const { return m_count; }

    const PimContactWriteReport& Report() const { return m_report; }
    int Most() const { return m_most; }
    void SetMost( int a_most ) { m_most = a_most; }

private:
    PimContactWriteReport m_report;
    int m_most;
    int m_line = 0;
    qint64 m_count = 0;
};

} // namespace PimManager::Contacts
