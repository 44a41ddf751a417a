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

/// What a card says about its contact, typed. Implicitly shared. Const functions may run in several threads at once.
///
/// **Reading.** Making a contact finds its lines and decodes nothing. Each function below decodes what it returns, each
/// time, and costs next to nothing if the card has no such property; keep a list that you need twice. Lists are in the
/// order of the card, without fields that are empty. Where the card leaves something open, it is open in the contact,
/// too: nothing is guessed. The rules are the same for versions 2.1, 3.0 and 4.0, whatever version a property belongs
/// to.
///
/// **Languages.** Lines of one property that say the same in several languages (ALTID; RFC 6350, section 5.4) are one
/// field, in the language that SetLanguages() asks for, or else the first one. Its Alternatives() are all of them. The
/// elements of NICKNAME and CATEGORIES correspond by their place in the lists.
///
/// **Editing.** An edit changes the lines that it must and no others, and needs time linear in the number of lines at
/// most. The card that the contact was read from does not change: Card() makes a new one. Removed lines keep their
/// memory until Compacted() is called.
///
/// QML reads the properties. Lists are lists of the fields' gadgets, and what is open is undefined.
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
    /// Creates a contact without a card: all texts and lists are empty. It can be edited, and is then of version 3.0.
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

    /// \return the card: the one that was read, or after edits a new one that has the lines of the contact. Its number
    ///         and place are those of the card that was read. Linear in its length after an edit.
    PimContactCard Card() const;

    /// The version of the card, by which lines are read and added.
    PimContactVersion Version() const;

    /// Chooses among properties that say the same in several languages.
    /// \param a_languages the wanted languages (RFC 5646), the best one first. `de` also finds `de-CH`, if there is
    ///                    no `de`.
    void SetLanguages( const QStringList& a_languages );
    QStringList Languages() const;

    /// \name Names
    /// \{

    /// \return what to call the contact: FN, or else N in the order of speech, or else NICKNAME, ORG, a mail address or
    ///         a number. White space in it becomes single blanks. Empty if the card has nothing of that kind.
    QString DisplayName() const;

    /// \return the text to sort the contact by: SORT-AS of N, SORT-STRING, else family and given name, else SORT-AS of
    ///         ORG, else the display name.
    QString SortName() const;

    /// The first N that is not empty, with phonetic names and maiden name; an empty name without one.
    PimContactName Name() const;
    /// FN.
    PimContactList<PimContactText> FormattedNames() const;
    /// NICKNAME, a field for each nickname.
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
    /// IMPP, SOCIALPROFILE, and what programs use for them. A line that holds several accounts, such as
    /// `X-messaging/xmpp-All`, is a field for each.
    PimContactList<PimContactMessenger> Messengers() const;
    /// URL.
    PimContactList<PimContactText> Urls() const;
    /// CONTACT-URI (RFC 8605).
    PimContactList<PimContactText> ContactUris() const;
    /// LANG: the languages that the contact speaks.
    PimContactList<PimContactText> SpokenLanguages() const;
    /// The property GEO (RFC 6350, section 6.5.2); open if there is none that can be read.
    std::optional<PimContactPosition> Position() const;
    /// The property TZ as written, such as `-0500` or `Europe/Berlin`.
    QString TimeZone() const;
    /// \}

    /// \name Days
    /// \{

    /// BDAY, ANNIVERSARY, DEATHDATE, X-ABDATE and what programs use for them.
    PimContactList<PimContactEvent> Events() const;
    /// The date of the first BDAY; a null date without one.
    PimContactDate Birthday() const;
    /// The date of the first anniversary; a null date without one.
    PimContactDate Anniversary() const;
    /// The date of the first DEATHDATE; a null date without one.
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

    /// RELATED, AGENT, and what programs use for them.
    PimContactList<PimContactRelation> Relations() const;
    /// KIND in lower case, such as `individual`, `group` or `org`; empty if it is open.
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

    /// UID; empty if it is open.
    QString Uid() const;
    /// REV; a null date without one.
    PimContactDate Revision() const;
    /// CREATED (RFC 9554); a null date without one.
    PimContactDate Created() const;
    /// X-IRMC-CALL-DATETIME: when the call was, in the call list of a phone; a null date without one.
    PimContactDate CallTime() const;
    PimContactList<PimContactText> Notes() const;
    /// CATEGORIES, a field for each category.
    PimContactList<PimContactText> Categories() const;
    /// The first GENDER; open without one.
    std::optional<PimContactGender> Gender() const;
    /// GRAMGENDER (RFC 9554).
    PimContactList<PimContactText> GrammaticalGenders() const;
    /// PRONOUNS (RFC 9554).
    PimContactList<PimContactText> Pronouns() const;
    /// LANGUAGE (RFC 9554): the language of texts that name none.
    QString DefaultLanguage() const;
    PimContactList<PimContactText> CalendarUris() const;
    /// CALADRURI.
    PimContactList<PimContactText> CalendarAddresses() const;
    /// FBURL.
    PimContactList<PimContactText> FreeBusyUris() const;
    PimContactList<PimContactText> Sources() const;
    PimContactList<PimContactText> Xml() const;
    /// CLIENTPIDMAP: the number that PID parameters refer to, and its URI. Numbers that cannot be read are left out.
    QList<QPair<int, QString>> ClientPidMap() const;
    /// CLASS, MAILER and PRODID; empty if they are open.
    QString Classification() const;
    QString Mailer() const;
    QString ProductId() const;

    /// \return the lines that none of the functions above reads: those of other properties, such as `X-COLOR`, a second
    ///         UID or N, and a label of a group without a field. Empty lines of the properties above are left out.
    ///         Reads the whole contact.
    QList<PimContactLine> OtherLines() const;
    /// \}

    /// \name Lines
    /// \{

    /// The ids of all lines in their order. They count from 1; a new line receives a new number.
    QList<int> LineIds() const;
    /// \return the line with an id; a null line if there is none. Linear in the number of lines.
    PimContactLine Line( int a_id ) const;

    /// Reads any line as one text, as people read it:
    ///
    /// | property | text |
    /// |---|---|
    /// | TEL | the number; `tel:+1-555;ext=2` is `+1-555;ext=2` (RFC 3966) |
    /// | EMAIL | the address, without `mailto:` and without the name of the person |
    /// | ADR | lines: post office box, extended address, street, postal code and locality, region, country |
    /// | X-IRMC-CALL-DATETIME | the time, such as `2024-03-11 08:45:12 UTC`; if it is none, the value |
    /// | a list, or components | its parts, joined by commas; empty ones are left out |
    /// | any other | the value |
    ///
    /// \param a_line a line of the contact or of its card; a null line gives an empty field.
    PimContactText FieldOf( const PimContactLine& a_line ) const;
    /// \}

    /// \name Edits
    /// Each adds, replaces or removes lines. A line that is added is written in the card's version: in 2.1 as
    /// QUOTED-PRINTABLE in UTF-8 where it is not ASCII, and in the other versions in UTF-8. Control characters other
    /// than tabs and line breaks are left out.
    ///
    /// Lines that stay are read as before, also in the card that Card() returns. The bytes of that card, read again,
    /// say the same, unless how the card is read depends on a line that was added or removed. That can happen in a card
    /// that is not whole or not in UTF-8, in a card of version 2.1 with folds, and next to a line that may be a
    /// property or unindented text.
    /// \{

    /// Replaces FN, or adds it. An empty text removes it.
    void SetDisplayName( const QString& a_name );
    /// Replaces N, or adds it, and the phonetic names and the maiden name with it. An empty name removes them.
    void SetName( const PimContactName& a_name );

    /// Adds a field at the end of its kind, or else at the end of the card. A label that is not a word of TYPE takes a
    /// group that is free, and becomes X-ABLabel. In a version that has no property for a part of the field, that part
    /// is written as programs do: before 4.0, the delivery text of an address is a LABEL of its group, and a preference
    /// other than 1 is left out. A field with an ALTID is added without it.
    /// \return the id of the line; 0 if the field is empty, and nothing was added.
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

    /// Replaces all properties of a kind by one, or by none if the value is empty. A birthday or anniversary that a
    /// phone keeps in X-ANDROID-CUSTOM is removed as well.
    void SetBirthday( const PimContactDate& a_date );
    void SetAnniversary( const PimContactDate& a_date );
    void SetPhoto( const PimContactMedia& a_photo );
    void SetGender( const PimContactGender& a_gender );
    void SetCategories( const QStringList& a_categories );
    void SetUid( const QString& a_uid );
    void SetKind( const QString& a_kind );
    void SetRevision( const PimContactDate& a_date );
    void SetMembers( const QStringList& a_addresses );

    /// Replaces a field that was read from this contact by another one of the same class. Its line keeps its id, its
    /// group and the parameters that the field does not know; an empty field removes it. The property changes if the
    /// old one says something else: X-SPOUSE becomes X-ABRELATEDNAMES for a friend. If another line uses the group, a
    /// new label takes another group. Of several nicknames or categories in one line, only the text is replaced.
    ///
    /// A field counts only as long as its line is the one that it was read from. So read it again after its line was
    /// replaced, and do not pass fields of other contacts: they change nothing, unless a line with the same id has the
    /// same bytes here. A nickname or category is found by its text, also if others of its line have changed.
    /// \return false if the contact has no such line, or if the field is of another class; nothing was changed.
    bool Replace( const PimContactField& a_field, const PimContactField& a_by );

    /// Removes the lines of a field: its own, and its label and other additions, unless another line of the group needs
    /// them. One nickname or category is taken out of its line. Of a field in several languages, this one is removed.
    /// \return false if the contact has no such line, see Replace(); nothing was changed.
    bool Remove( const PimContactField& a_field );

    /// Adds any line at the end of the card.
    /// \param a_line a content line in the card's version, in UTF-8 and without the line ending, such as `X-COLOR:red`.
    /// \return the id of the line; 0 if it is not exactly one property with a colon, if it is BEGIN, END or VERSION, or
    ///         if it ends in a soft line break. Then nothing was added.
    int AddLine( const QByteArray& a_line );
    /// Removes one line, and nothing else. VERSION cannot be removed, because it says how the others are read.
    /// \return false if there is none with the id, or if it is VERSION.
    bool RemoveLine( int a_id );

    /// \return the same contact in a card of its own, so that the memory of removed lines is given back. Ids do not
    ///         change.
    PimContact Compacted() const;
    /// \}

    /// \return true if all typed fields and the other lines are equal. Versions, folds, encodings, names of groups, and
    ///         the letter case and order of parameters are not compared. Linear in the length of both.
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

/// Prints counts and kinds, never texts of the contact.
PIMCONTACT_EXPORT QDebug operator<<( QDebug a_debug, const PimContact& a_contact );

} // namespace PimManager::Contacts

Q_DECLARE_METATYPE( PimManager::Contacts::PimContact )
