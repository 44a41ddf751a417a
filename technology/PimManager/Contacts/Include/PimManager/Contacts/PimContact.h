/// \file
/// A card as a person or an organisation.
///
/// \code
/// const PimContactBook book = PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) );
/// for ( const PimContact& contact : book )
/// {
///     for ( const PimContactPhone& phone : contact.Phones() )
///         qInfo() << contact.DisplayName() << phone.Number() << phone.Kinds() << phone.Label();
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactAddress.h>
#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactDate.h>
#include <PimManager/Contacts/PimContactEvent.h>
#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactGender.h>
#include <PimManager/Contacts/PimContactMail.h>
#include <PimManager/Contacts/PimContactMedia.h>
#include <PimManager/Contacts/PimContactMessenger.h>
#include <PimManager/Contacts/PimContactName.h>
#include <PimManager/Contacts/PimContactOrganisation.h>
#include <PimManager/Contacts/PimContactPhone.h>
#include <PimManager/Contacts/PimContactRelation.h>
#include <PimManager/Contacts/PimContactText.h>

#include <QList>
#include <QPair>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QtCore/qobjectdefs.h>

class QDebug;

namespace PimManager::Contacts
{

class PimContactPrivate;

/// The data of a card as typed fields. Implicitly shared. Const functions may run in several threads at once.
///
/// **Reading.** The constructor finds the lines of the card and decodes nothing. Each function below decodes its result
/// at every call, so keep a list that you need twice. A call costs almost nothing if the card has no such property.
/// Lists are in the order of the card and have no empty fields. Nothing is guessed: what the card does not state is not
/// set in the contact either. The rules are the same for versions 2.1, 3.0 and 4.0, and do not depend on the version
/// that defines a property.
///
/// **Languages.** Lines of one property with the same ALTID (RFC 6350, section 5.4) are one field in several languages.
/// The field is the line in the language chosen with SetLanguages(), or else the first line. Its Alternatives() are all
/// of these lines. The elements of NICKNAME and CATEGORIES correspond by their position in the lists.
///
/// **Editing.** An edit changes only the lines that it must change. It is at most linear in the number of lines. The
/// card that the contact was read from does not change; Card() returns a new one. Removed lines keep their memory until
/// Compacted() is called.
///
/// QML reads the properties. Lists contain the fields as gadgets. A value that is not set is undefined.
class PIMCONTACT_EXPORT PimContact
{
    Q_GADGET
    Q_PROPERTY( QString displayName READ DisplayName )
    Q_PROPERTY( QString sortName READ SortName )
    Q_PROPERTY( PimManager::Contacts::PimContactName name READ Name )
    Q_PROPERTY( QVariantList nicknames READ NicknameValues )
    Q_PROPERTY( QVariantList phones READ PhoneValues )
    Q_PROPERTY( QVariantList mails READ MailValues )
    Q_PROPERTY( QVariantList addresses READ AddressValues )
    Q_PROPERTY( QVariantList events READ EventValues )
    Q_PROPERTY( QVariant birthday READ BirthdayValue )
    Q_PROPERTY( QVariant anniversary READ AnniversaryValue )
    Q_PROPERTY( QVariantList messengers READ MessengerValues )
    Q_PROPERTY( QVariantList organisations READ OrganisationValues )
    Q_PROPERTY( QVariantList titles READ TitleValues )
    Q_PROPERTY( QVariantList roles READ RoleValues )
    Q_PROPERTY( QVariantList relations READ RelationValues )
    Q_PROPERTY( QVariantList photos READ PhotoValues )
    Q_PROPERTY( QVariantList notes READ NoteValues )
    Q_PROPERTY( QVariantList urls READ UrlValues )
    Q_PROPERTY( QVariantList categories READ CategoryValues )
    Q_PROPERTY( QVariant gender READ GenderValue )
    Q_PROPERTY( QString kind READ Kind )
    Q_PROPERTY( QString uid READ Uid )

public:
    /// Creates a contact without a card: all texts and lists are empty. It can be edited, and then has version 3.0.
    PimContact();
    /// Reads a card. Linear in the number of its lines. A null card makes a null contact.
    explicit PimContact( const PimContactCard& a_card );
    PimContact( const PimContact& a_other );
    PimContact( PimContact&& a_other ) noexcept;
    PimContact& operator=( const PimContact& a_other );
    PimContact& operator=( PimContact&& a_other ) noexcept;
    ~PimContact();

    /// True for a contact that was made without a card and was never edited.
    bool IsNull() const;

    /// \return the card that was read, or after edits a new card with the lines of the contact. The new card keeps the
    ///         number and position of the card that was read. Linear in its length after an edit.
    PimContactCard Card() const;

    /// The version of the card. It determines how lines are read and added.
    PimContactVersion Version() const;

    /// Sets the languages to choose from if a property is in several languages.
    /// \param a_languages the languages (RFC 5646), the preferred one first. `de` also finds `de-CH` if there is no
    ///                    `de`.
    void SetLanguages( const QStringList& a_languages );
    QStringList Languages() const;

    /// \name Names
    /// \{

    /// \return the name to show for the contact: FN, or else N in spoken order, or else NICKNAME, ORG, a mail address
    ///         or a number. Each run of white space in it becomes one blank. Empty if the card has none of these.
    QString DisplayName() const;

    /// \return the text to sort the contact by: SORT-AS of N, else SORT-STRING, else family and given name, else
    ///         SORT-AS of ORG, else the display name.
    QString SortName() const;

    /// The first N that is not empty, with phonetic names and maiden name. An empty name if there is none.
    PimContactName Name() const;
    /// FN.
    PimContactList<PimContactText> FormattedNames() const;
    /// NICKNAME, one field for each nickname.
    PimContactList<PimContactText> Nicknames() const;
    /// \}

    /// \name Ways to reach the contact
    /// \{

    /// TEL.
    PimContactList<PimContactPhone> Phones() const;
    /// EMAIL.
    PimContactList<PimContactMail> Mails() const;
    /// ADR, and LABEL without an ADR.
    PimContactList<PimContactAddress> Addresses() const;
    /// IMPP, SOCIALPROFILE, and the properties that programs use instead. A line with several accounts, such as
    /// `X-messaging/xmpp-All`, is one field for each account.
    PimContactList<PimContactMessenger> Messengers() const;
    /// URL.
    PimContactList<PimContactText> Urls() const;
    /// CONTACT-URI (RFC 8605).
    PimContactList<PimContactText> ContactUris() const;
    /// LANG: the languages of the contact.
    PimContactList<PimContactText> SpokenLanguages() const;
    /// The property GEO (RFC 6350, section 6.5.2). Not set if there is none that can be read.
    std::optional<PimContactPosition> Position() const;
    /// The property TZ as written, such as `-0500` or `Europe/Berlin`.
    QString TimeZone() const;
    /// \}

    /// \name Days
    /// \{

    /// BDAY, ANNIVERSARY, DEATHDATE, X-ABDATE and the properties that programs use instead.
    PimContactList<PimContactEvent> Events() const;
    /// The date of the first BDAY. A null date if there is none.
    PimContactDate Birthday() const;
    /// The date of the first anniversary. A null date if there is none.
    PimContactDate Anniversary() const;
    /// The date of the first DEATHDATE. A null date if there is none.
    PimContactDate DeathDate() const;
    /// \}

    /// \name Work
    /// \{

    /// ORG.
    PimContactList<PimContactOrganisation> Organisations() const;
    /// TITLE.
    PimContactList<PimContactText> Titles() const;
    /// ROLE.
    PimContactList<PimContactText> Roles() const;
    /// EXPERTISE, HOBBY, INTEREST and ORG-DIRECTORY (RFC 6715).
    PimContactList<PimContactText> Expertise() const;
    PimContactList<PimContactText> Hobbies() const;
    PimContactList<PimContactText> Interests() const;
    PimContactList<PimContactText> OrganisationDirectories() const;
    /// \}

    /// \name People and groups
    /// \{

    /// RELATED, AGENT, and the properties that programs use instead.
    PimContactList<PimContactRelation> Relations() const;
    /// KIND in lower case, such as `individual`, `group` or `org`. Empty if there is none.
    QString Kind() const;
    /// True if Kind() is `group`.
    bool IsGroup() const;
    /// MEMBER: the addresses of the members, such as `urn:uuid:…`. PimContactBook::MembersOf() finds them.
    PimContactList<PimContactText> Members() const;
    /// \}

    /// \name Pictures, sounds and keys
    /// \{

    PimContactList<PimContactMedia> Photos() const;
    PimContactList<PimContactMedia> Logos() const;
    PimContactList<PimContactMedia> Sounds() const;
    PimContactList<PimContactMedia> Keys() const;
    /// \}

    /// \name The rest
    /// \{

    /// UID. Empty if there is none.
    QString Uid() const;
    /// REV. A null date if there is none.
    PimContactDate Revision() const;
    /// CREATED (RFC 9554). A null date if there is none.
    PimContactDate Created() const;
    /// X-IRMC-CALL-DATETIME: the time of a call in the call list of a phone. A null date if there is none.
    PimContactDate CallTime() const;
    PimContactList<PimContactText> Notes() const;
    /// CATEGORIES, one field for each category.
    PimContactList<PimContactText> Categories() const;
    /// The first GENDER. Not set if there is none.
    std::optional<PimContactGender> Gender() const;
    /// GRAMGENDER (RFC 9554).
    PimContactList<PimContactText> GrammaticalGenders() const;
    /// PRONOUNS (RFC 9554).
    PimContactList<PimContactText> Pronouns() const;
    /// LANGUAGE (RFC 9554): the language of texts without a LANGUAGE parameter.
    QString DefaultLanguage() const;
    PimContactList<PimContactText> CalendarUris() const;
    /// CALADRURI.
    PimContactList<PimContactText> CalendarAddresses() const;
    /// FBURL.
    PimContactList<PimContactText> FreeBusyUris() const;
    PimContactList<PimContactText> Sources() const;
    PimContactList<PimContactText> Xml() const;
    /// CLIENTPIDMAP: each number that PID parameters refer to, with its URI. Numbers that cannot be read are left out.
    QList<QPair<int, QString>> ClientPidMap() const;
    /// CLASS, MAILER and PRODID. Empty if there is none.
    QString Classification() const;
    QString Mailer() const;
    QString ProductId() const;

    /// \return the lines that none of the functions above reads: other properties such as `X-COLOR`, a second UID or N,
    ///         and the label of a group without a field. Lines of the properties above with an empty value are left
    ///         out. Reads the whole contact.
    QList<PimContactLine> OtherLines() const;
    /// \}

    /// \name Lines
    /// \{

    /// The ids of all lines in their order. Ids count from 1. A new line receives a new id.
    QList<int> LineIds() const;
    /// \return the line with this id, or a null line if there is none. Linear in the number of lines.
    PimContactLine Line( int a_id ) const;

    /// Reads any line as one text for people:
    ///
    /// | property | text |
    /// |---|---|
    /// | TEL | the number; `tel:+1-555;ext=2` is `+1-555;ext=2` (RFC 3966) |
    /// | EMAIL | the address, without `mailto:` and without the name of the person |
    /// | ADR | lines: post office box, extended address, street, postal code and locality, region, country |
    /// | X-IRMC-CALL-DATETIME | the time, such as `2024-03-11 08:45:12 UTC`; the value if it is not a time |
    /// | a list, or components | its parts, joined by commas; empty ones are left out |
    /// | any other | the value |
    ///
    /// \param a_line a line of the contact or of its card; a null line results in an empty field.
    PimContactText FieldOf( const PimContactLine& a_line ) const;
    /// \}

    /// \name Edits
    ///
    /// Each edit adds, replaces or removes lines. A new line is written in the version of the card. It is
    /// in UTF-8, and in version 2.1 also in QUOTED-PRINTABLE if it is not ASCII. Control characters other than tabs and
    /// line breaks are left out.
    ///
    /// All other lines keep their meaning, also in the card that Card() returns. If the bytes of that card are read
    /// again, they have the same meaning as well, unless an added or removed line affects how the rest of the card is
    /// read. That can happen in a card that is not whole or not in UTF-8, in a card of version 2.1 with folds, and next
    /// to a line that may be a property or unindented text.
    /// \{

    /// Replaces FN, or adds it. An empty text removes it.
    void SetDisplayName( const QString& a_name );
    /// Replaces N, the phonetic names and the maiden name, or adds them. An empty name removes them.
    void SetName( const PimContactName& a_name );

    /// Adds a field after the last field of its kind, or else at the end of the card. A label that is not a TYPE word
    /// is written as X-ABLabel in an unused group. If the version has no property for a part of the field, that part is
    /// written as most programs write it: before 4.0, the delivery text of an address becomes a LABEL in the same
    /// group, and a preference other than 1 is left out. The ALTID of a field is not written.
    /// \return the id of the new line; 0 if the field is empty and nothing was added.
    int AddPhone( const PimContactPhone& a_phone );
    int AddMail( const PimContactMail& a_mail );
    int AddAddress( const PimContactAddress& a_address );
    int AddMessenger( const PimContactMessenger& a_messenger );
    int AddEvent( const PimContactEvent& a_event );
    int AddOrganisation( const PimContactOrganisation& a_organisation );
    int AddRelation( const PimContactRelation& a_relation );
    int AddUrl( const PimContactText& a_url );
    int AddNote( const PimContactText& a_note );
    int AddTitle( const PimContactText& a_title );
    int AddRole( const PimContactText& a_role );
    int AddNickname( const PimContactText& a_nickname );
    int AddPhoto( const PimContactMedia& a_photo );
    int AddLogo( const PimContactMedia& a_logo );

    /// Replaces all properties of a kind by one. An empty value removes them. A birthday or anniversary in
    /// X-ANDROID-CUSTOM is removed as well.
    void SetBirthday( const PimContactDate& a_date );
    void SetAnniversary( const PimContactDate& a_date );
    void SetPhoto( const PimContactMedia& a_photo );
    void SetGender( const PimContactGender& a_gender );
    void SetCategories( const QStringList& a_categories );
    void SetUid( const QString& a_uid );
    void SetKind( const QString& a_kind );
    void SetRevision( const PimContactDate& a_date );
    void SetMembers( const QStringList& a_addresses );

    /// Replaces a field that was read from this contact by another one of the same class. The line keeps its id, its
    /// group and the parameters that the class does not read. An empty field removes the line. The property changes if
    /// the old one has another meaning: X-SPOUSE becomes X-ABRELATEDNAMES for a friend. If another line uses the group,
    /// a new label is written in another group. If one line contains several nicknames or categories, only the text of
    /// this one is replaced.
    ///
    /// A field is valid only as long as its line has not changed, so read it again after its line was replaced. Do not
    /// pass fields of other contacts: they change nothing, unless a line with the same id has the same bytes in this
    /// contact. A nickname or category is found by its text, even if others in its line have changed.
    /// \return false if the contact has no such line or if the field has another class. Then nothing was changed.
    bool Replace( const PimContactField& a_field, const PimContactField& a_by );

    /// Removes the lines of a field: its own line, and its label and other additions unless another line of the group
    /// needs them. A nickname or category is removed from its line. If a field is in several languages, only this one
    /// is removed.
    /// \return false if the contact has no such line, see Replace(). Then nothing was changed.
    bool Remove( const PimContactField& a_field );

    /// Adds any line at the end of the card.
    /// \param a_line a content line in the card's version, in UTF-8 and without the line ending, such as `X-COLOR:red`.
    /// \return the id of the new line. 0 if \a a_line is not exactly one property with a colon, if it is BEGIN, END or
    ///         VERSION, or if it ends in a soft line break. Then nothing was added.
    int AddLine( const QByteArray& a_line );
    /// Removes one line, and nothing else. VERSION cannot be removed, because it determines how the other lines are
    /// read.
    /// \return false if no line has this id or if it is VERSION.
    bool RemoveLine( int a_id );

    /// \return the same contact in a card of its own, which frees the memory of removed lines. Ids do not change.
    PimContact Compacted() const;
    /// \}

    /// \return true if all typed fields and the other lines are equal. Versions, folds, encodings, group names, and the
    ///         letter case and order of parameters are not compared. Two null contacts are equal. A second REV, CREATED
    ///         or call time is compared as a date. Linear in the length of both.
    bool operator==( const PimContact& a_other ) const;
    bool operator!=( const PimContact& a_other ) const { return !( *this == a_other ); }

private:
    QVariantList NicknameValues() const { return Nicknames().Values(); }
    QVariantList PhoneValues() const { return Phones().Values(); }
    QVariantList MailValues() const { return Mails().Values(); }
    QVariantList AddressValues() const { return Addresses().Values(); }
    QVariantList EventValues() const { return Events().Values(); }
    QVariant BirthdayValue() const;
    QVariant AnniversaryValue() const;
    QVariantList MessengerValues() const { return Messengers().Values(); }
    QVariantList OrganisationValues() const { return Organisations().Values(); }
    QVariantList TitleValues() const { return Titles().Values(); }
    QVariantList RoleValues() const { return Roles().Values(); }
    QVariantList RelationValues() const { return Relations().Values(); }
    QVariantList PhotoValues() const { return Photos().Values(); }
    QVariantList NoteValues() const { return Notes().Values(); }
    QVariantList UrlValues() const { return Urls().Values(); }
    QVariantList CategoryValues() const { return Categories().Values(); }
    QVariant GenderValue() const;

    QSharedDataPointer<PimContactPrivate> d;
};

/// Prints counts and kinds, but no text of the contact.
PIMCONTACT_EXPORT QDebug operator<<( QDebug a_debug, const PimContact& a_contact );

} // namespace PimManager::Contacts

Q_DECLARE_METATYPE( PimManager::Contacts::PimContact )
