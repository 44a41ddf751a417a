/// \file
/// A card as a person or an organisation.
///
/// \code
/// const PimContactBook book = PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) );
/// for ( const PimContactCard& card : book )
/// {
///     const PimContact contact( card );
///     for ( const PimContactEntry& phone : contact.Phones() )
///         qInfo() << contact.DisplayName() << phone.Text() << phone.Purpose();
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactExport.h>

#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

namespace PimManager::Contacts
{

class PimContactEntryPrivate;
class PimContactPrivate;

/// One property of a contact, such as a number: its text as people read it, and what it is for. Implicitly shared and
/// immutable.
///
/// Texts are decoded and otherwise as the card has them: they may be long and may contain any character. Escape them
/// before you write them to a terminal or into HTML.
class PIMCONTACT_EXPORT PimContactEntry
{
public:
    /// Creates an entry without a text.
    PimContactEntry();
    PimContactEntry( const PimContactEntry& a_other );
    PimContactEntry& operator=( const PimContactEntry& a_other );
    ~PimContactEntry();

    /// \return the value as one text; empty if there is none. White space at both ends is removed.
    ///
    /// | property | text |
    /// |---|---|
    /// | TEL | the number; `tel:+1-555;ext=2` is `+1-555;ext=2` (RFC 3966) |
    /// | EMAIL | the address, without `mailto:` and without the name of the person |
    /// | ADR | lines: post office box, extended address, street, postal code and locality, region, country |
    /// | X-IRMC-CALL-DATETIME | the time, such as `2024-03-11 08:45:12 UTC`; if it is none, the value |
    /// | a list, or components | its parts, joined by commas; empty ones are left out |
    /// | any other | the value |
    QString Text() const;

    /// \return the values of TYPE, such as `CELL`, each once. Letters of ASCII are in upper case. PREF is left out, and
    ///         so is INTERNET of a mail address, because every address has it.
    QStringList Types() const;

    /// \return what the owner of the address book calls the entry (X-ABLabel of the same group); `Home` for
    ///         `_$!<Home>!$_`. Empty without a label.
    QString Label() const;

    /// \return from 1, the most wanted, to 100: the value of PREF, or 1 if a type is PREF; 0 for none.
    int Preference() const;

    /// \return what the entry is for, in a few words such as `boat phone` or `cell, work`: the label, or else the types
    ///         in small letters. Empty if the card says nothing.
    QString Purpose() const;

private:
    friend class PimContactPrivate; // creates entries
    QSharedDataPointer<PimContactEntryPrivate> d;
};

/// What a card says about its contact. It was read from the card when the object was created; the card itself is kept.
/// Implicitly shared and immutable. Const functions may run in several threads at once.
class PIMCONTACT_EXPORT PimContact
{
public:
    /// Creates a null contact: all texts and lists are empty.
    PimContact();
    /// Reads a card. Linear in its length. A null card makes a null contact.
    explicit PimContact( const PimContactCard& a_card );
    PimContact( const PimContact& a_other );
    PimContact& operator=( const PimContact& a_other );
    ~PimContact();

    /// True for a null contact.
    bool IsNull() const;

    /// The card that was read.
    PimContactCard Card() const;

    /// \return what to call the contact: FN, or else N in the order of speech, or else NICKNAME, ORG, a mail address or
    ///         a number. White space in it becomes single blanks. Empty if the card has nothing of that kind.
    QString DisplayName() const;

    /// The TEL properties in their order, without those that have no text.
    QList<PimContactEntry> Phones() const;

    /// The EMAIL properties in their order, without those that have no text.
    QList<PimContactEntry> Mails() const;

    /// The parts of the first ORG that is not empty, joined by commas; empty without one.
    QString Organisation() const;

    /// Reads any property of the card. Linear in its length.
    /// \param a_line a line of Card(); for a null line the entry has no text.
    PimContactEntry EntryOf( const PimContactLine& a_line ) const;

private:
    QSharedDataPointer<PimContactPrivate> d;
};

} // namespace PimManager::Contacts
