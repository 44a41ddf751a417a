/// \file
/// A number for each different text.

#pragma once

#include <QHash>
#include <QString>

namespace PimManager::PhoneBook
{

/// Numbers texts in the order in which they are first seen, from 0. Equal numbers mean equal texts.
class TextNumbers
{
public:
    quint64 NumberOf( const QString& a_text )
    {
        const auto number = m_numbers.constFind( a_text );
        return number != m_numbers.constEnd() ? *number : *m_numbers.insert( a_text, Size() );
    }
    quint64 Size() const { return static_cast<quint64>( m_numbers.size() ); }

private:
    QHash<QString, quint64> m_numbers;
};

} // namespace PimManager::PhoneBook
