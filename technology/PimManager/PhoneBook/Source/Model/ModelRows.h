/// \file
/// The rows of a PimPhoneBookModel.

#pragma once

#include "Model/BookStep.h"
#include "Model/RowChanges.h"
#include "Model/RowList.h"

#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace PimManager::PhoneBook
{

class PimPhoneBookModelPrivate
{
public:
    explicit PimPhoneBookModelPrivate( PimPhoneBookModel& a_model );

    const PimPhoneBook& PhoneBook() const { return m_phoneBook; }
    const RowList& Rows() const { return m_rows; }
    const QString& Filter() const { return m_filter; }
    const QString& Keys() const { return m_keys; }

    /// \param a_step the step to this phone book, if it is known. It is not used if the model has another phone book
    ///               than that from which the step goes.
    void SetPhoneBook( const PimPhoneBook& a_phoneBook, const std::optional<BookStep>& a_step );
    /// One of both is empty.
    void Search( const QString& a_filter, const QString& a_keys );
    void SetRecentCalls( const QStringList& a_numbers );

    /// \return the contact of a row. The last one is kept, because views read all roles of a row one after the other.
    const Contacts::PimContact& ContactOf( int a_row );

private:
    void Refresh();
    void Update();
    void ShowPhoneBook( const PimPhoneBook& a_phoneBook, const BookStep& a_step );
    void ShowMatches();
    QVector<int> RowsOf( const PimPhoneBook& a_phoneBook ) const;
    void Remove( const RowChanges& a_changes );
    void MoveAndInsert( const RowChanges& a_changes );
    void TellChanged( const QVector<int>& a_contacts );

    PimPhoneBookModel& m_model;
    PimPhoneBook m_phoneBook;
    QString m_filter;
    QString m_keys;
    std::optional<QStringList> m_recentCalls;
    RowList m_rows;
    int m_lastContact = -1;
    Contacts::PimContact m_last;

    // A receiver of a signal may want other rows before all signals of a change were emitted. They are shown after it.
    bool m_isChanging = false;
    bool m_isOutdated = false;
    std::optional<PimPhoneBook> m_next;
    std::optional<BookStep> m_nextStep;
};

} // namespace PimManager::PhoneBook
