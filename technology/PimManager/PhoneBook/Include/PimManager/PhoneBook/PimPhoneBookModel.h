/// \file
/// The contacts of a phone book for a list in QML or in a widget.
///
/// \code
/// PimPhoneBookModel model;
/// model.SetPhoneBook( phoneBook );
/// view.rootContext()->setContextProperty( QStringLiteral( "contacts" ), &model );
/// \endcode
///
/// In QML:
///
/// \code{.qml}
/// ListView {
///     model: contacts
///     section.property: contacts.filter || contacts.keys ? "" : "section"
///     delegate: Text { text: model.name + " " + model.number }
/// }
/// \endcode

#pragma once

#include <PimManager/PhoneBook/PimPhoneBook.h>
#include <PimManager/PhoneBook/PimPhoneBookExport.h>

#include <QAbstractListModel>
#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace PimManager::PhoneBook
{

class PimPhoneBookModelPrivate;

/// The contacts of a phone book, one in each row: all of them in the order of PimPhoneBook::Sorted(), or those that
/// Find() or FindByKeys() finds, in the order of that function.
///
/// **The list never jumps.** Whatever changes, the model removes, inserts and moves rows and is never reset. A contact
/// that remains keeps its persistent indexes and with them the selection. There is one exception, which bounds the
/// work: if the rows that go and those that stay form too many ranges, all rows between the first and the last
/// difference are removed and inserted. For a search, more than 32 ranges are too many. For another phone book, more
/// than 2,000 are.
///
/// **Memory.** The model keeps one number for each row. Contacts and texts are decoded when a view requests them.
///
/// **Threads.** The model and its views belong to one thread. PimPhoneBookLoader makes phone books in another one.
class PIMPHONEBOOK_EXPORT PimPhoneBookModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY( QString filter READ Filter WRITE SetFilter NOTIFY FilterChanged )
    Q_PROPERTY( QString keys READ Keys WRITE SetKeys NOTIFY KeysChanged )
    Q_PROPERTY( int count READ Count NOTIFY CountChanged )

public:
    /// The roles, and their names in QML.
    enum Role
    {
        /// `contact`: the PimContact. QML reads its properties.
        ContactRole = Qt::UserRole,
        /// `name`: PimContact::DisplayName(). The role Qt::DisplayRole is the same.
        NameRole,
        /// `section`: PimPhoneBook::Section().
        SectionRole,
        /// `number`: the text of the preferred number. Empty if there is none.
        NumberRole,
        /// `numbers`: all numbers, a list of PimContactPhone.
        NumbersRole,
        /// `mails`: all mail addresses, a list of PimContactMail.
        MailsRole,
        /// `photo`: the preferred photo, a PimContactMedia. Undefined if there is none.
        PhotoRole,
        /// `organisation`: the text of the preferred organisation. Empty if there is none.
        OrganisationRole,
    };

    /// Creates a model of an empty phone book.
    explicit PimPhoneBookModel( QObject* a_parent = nullptr );
    ~PimPhoneBookModel() override;

    /// The phone book that is shown.
    PimPhoneBook PhoneBook() const;
    /// Replaces the phone book. A contact remains if PimPhoneBookChanges::Compare() finds it in both books. The filter
    /// and the keys remain as well.
    ///
    /// The books are compared in the thread of the caller. PimPhoneBookLoader compares them in its own.
    void SetPhoneBook( const PimPhoneBook& a_phoneBook );

    /// The text that the contacts contain. Empty by default; then all contacts are shown.
    QString Filter() const;
    /// Shows the contacts that PimPhoneBook::Find() finds for a text, and forgets the keys. An empty text shows all
    /// contacts.
    void SetFilter( const QString& a_text );

    /// The keys that the contacts have in a name or number. Empty by default; then all contacts are shown.
    QString Keys() const;
    /// Shows the contacts that PimPhoneBook::FindByKeys() finds for the keys of a telephone, and forgets the filter.
    /// Empty keys show all contacts.
    void SetKeys( const QString& a_keys );

    /// Sets the numbers of recent calls, see PimPhoneBook::SetRecentCalls(). They remain when the phone book is
    /// replaced.
    void SetRecentCalls( const QStringList& a_numbers );

    /// The number of rows.
    int Count() const;

    /// \return the index of a contact in the phone book. -1 if there is no such row.
    int ContactAt( int a_row ) const;
    /// \param a_contact an index in the phone book.
    /// \return the row of the contact. -1 if it is not shown. Linear in the number of rows.
    int RowOf( int a_contact ) const;

    /// \return Count(); 0 below a row.
    int rowCount( const QModelIndex& a_parent = QModelIndex() ) const override;
    /// \return what a row shows, see Role. Invalid for another role or row.
    QVariant data( const QModelIndex& a_index, int a_role = Qt::DisplayRole ) const override;
    /// \return the names in QML, see Role.
    QHash<int, QByteArray> roleNames() const override;

signals:
    /// Emitted when the rows are up to date.
    void FilterChanged();
    /// Emitted when the rows are up to date.
    void KeysChanged();
    /// Emitted when the rows are up to date.
    void CountChanged();

private:
    friend class PimPhoneBookModelPrivate; // changes rows
    friend class PimPhoneBookLoader;       // has compared the phone books already
    std::unique_ptr<PimPhoneBookModelPrivate> d;
};

} // namespace PimManager::PhoneBook
