/// \file
/// Contacts in the order of their names.

#pragma once

#include "Outputs/BookOutput.h"

#include <QString>

#include <memory>
#include <vector>

namespace PimManager::Tools
{

/// Keeps all contacts in memory, and passes them to another output at the end. They are in the order of the names to
/// sort by, without regard to letter case and the locale; contacts of one name stay in the order of the books.
class SortedOutput : public BookOutput
{
public:
    /// \param a_output needs no calls for the books.
    explicit SortedOutput( std::unique_ptr<BookOutput> a_output );

    void Open() override { m_output->Open(); }
    void Begin() override { m_output->Begin(); }
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;
    void Abandon() override { m_output->Abandon(); }
    void Fail( const QString& a_reason ) override { m_output->Fail( a_reason ); }
    QStringList Failures() const override { return m_output->Failures(); }
    ExitStatus Status() const override { return m_output->Status(); }
    QString Result() const override { return m_output->Result(); }

private:
    struct Entry
    {
        QString m_key;
        size_t m_book = 0;
        Contacts::PimContactCard m_card;
    };

    const std::unique_ptr<BookOutput> m_output;
    std::vector<BookInRun> m_books;
    std::vector<Entry> m_entries;
};

} // namespace PimManager::Tools
