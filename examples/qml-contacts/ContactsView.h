/// \file
/// The window with the list.

#pragma once

#include <QQuickView>

namespace PimManager::Contacts
{
class PimContactBook;
} // namespace PimManager::Contacts

class ContactsView : public QQuickView
{
    Q_OBJECT

public:
    explicit ContactsView( const PimManager::Contacts::PimContactBook& a_book );
};
