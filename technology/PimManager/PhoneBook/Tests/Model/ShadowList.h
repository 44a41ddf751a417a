/// \file
/// A view without a screen.

#pragma once

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QObject>

#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

/// Follows the signals of a model, as a view does, and knows nothing else of it. Ends the program if the model breaks a
/// rule of Qt.
class ShadowList
{
public:
    explicit ShadowList( QAbstractItemModel& a_model );

    /// What the view shows, and what it should show: all texts of each row.
    const std::vector<std::string>& Shown() const { return m_rows; }
    std::vector<std::string> Expected() const;

    /// The signals so far.
    int Resets() const { return m_resets; }
    int Steps() const { return m_steps; }
    int RowsTouched() const { return m_rowsTouched; }

private:
    std::string RowText( int a_row ) const;
    void Insert( int a_first, int a_last );
    void Remove( int a_first, int a_last );
    void Move( int a_first, int a_last, int a_target );
    void Change( int a_first, int a_last );
    void Count( int a_first, int a_last );

    QAbstractItemModel& m_model;
    QAbstractItemModelTester m_tester;
    QObject m_context;
    std::vector<std::string> m_rows;
    int m_resets = 0;
    int m_steps = 0;
    int m_rowsTouched = 0;
};

} // namespace PimManager::PhoneBook
