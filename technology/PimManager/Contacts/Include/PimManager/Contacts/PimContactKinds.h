/// \file
/// The purposes of the numbers, addresses and relations of a contact, as flags.
///
/// Each value lists the TYPE words that set it, in any letter case. The prefixes `X-` and `X-EVOLUTION-` are ignored.
/// PREF is not a kind. A word that is not listed here sets no flag.
///
/// The flags belong to the meta object of the namespace, `PimManager::Contacts::staticMetaObject`. QMetaEnum knows
/// their names, and a program can register them for QML with `qmlRegisterUncreatableMetaObject()`.
///
/// \code
/// if ( kinds.testFlag( PimContactPhoneKind::Fax ) )
///     ShowFaxIcon();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QFlags>
#include <QObject>
#include <QtGlobal>

namespace PimManager::Contacts
{

Q_NAMESPACE_EXPORT( PIMCONTACT_EXPORT )
Q_CLASSINFO( "RegisterEnumClassesUnscoped", "false" )

/// The purpose of a phone number. Words such as HOMEFAX and HOME-FAX set two flags.
enum class PimContactPhoneKind : quint32
{
    Home = 1U << 0U,       ///< HOME
    Work = 1U << 1U,       ///< WORK, BUSINESS
    Mobile = 1U << 2U,     ///< CELL, CELLULAR, MOBILE, IPHONE
    Fax = 1U << 3U,        ///< FAX; also HOMEFAX, WORKFAX, OTHERFAX, each with a second flag
    Pager = 1U << 4U,      ///< PAGER
    Video = 1U << 5U,      ///< VIDEO
    Text = 1U << 6U,       ///< TEXT, SMS, MSG: it accepts messages
    TextPhone = 1U << 7U,  ///< TEXTPHONE, TTY, TDD, TTYTDD, TTY-TDD: for people with hearing or speech difficulties
    Voice = 1U << 8U,      ///< VOICE
    Car = 1U << 9U,        ///< CAR
    Isdn = 1U << 10U,      ///< ISDN
    Bbs = 1U << 11U,       ///< BBS: a bulletin board system
    Modem = 1U << 12U,     ///< MODEM
    Pcs = 1U << 13U,       ///< PCS: personal communication services
    Main = 1U << 14U,      ///< MAIN, MAIN-NUMBER; also COMPANY-MAIN, with Company: a switchboard
    Assistant = 1U << 15U, ///< ASSISTANT
    Callback = 1U << 16U,  ///< CALLBACK
    Company = 1U << 17U,   ///< COMPANY
    Radio = 1U << 18U,     ///< RADIO
    Telex = 1U << 19U,     ///< TELEX, TLX
    Other = 1U << 20U,     ///< OTHER
};
Q_DECLARE_FLAGS( PimContactPhoneKinds, PimContactPhoneKind )
Q_FLAG_NS( PimContactPhoneKinds )
Q_DECLARE_OPERATORS_FOR_FLAGS( PimContactPhoneKinds )

/// The purpose of a mail address, a messenger account or a web page.
///
/// INTERNET sets no flag, because a mail address without a TYPE is an Internet address too (RFC 2426, section 3.3.2).
enum class PimContactKind : quint32
{
    Home = 1U << 0U,   ///< HOME, PERSONAL
    Work = 1U << 1U,   ///< WORK, BUSINESS
    Mobile = 1U << 2U, ///< CELL, CELLULAR, MOBILE, IPHONE
    Other = 1U << 3U,  ///< OTHER
};
Q_DECLARE_FLAGS( PimContactKinds, PimContactKind )
Q_FLAG_NS( PimContactKinds )
Q_DECLARE_OPERATORS_FOR_FLAGS( PimContactKinds )

/// The purpose of a postal address.
enum class PimContactAddressKind : quint32
{
    Home = 1U << 0U,          ///< HOME
    Work = 1U << 1U,          ///< WORK, BUSINESS
    Domestic = 1U << 2U,      ///< DOM: for mail from the same country
    International = 1U << 3U, ///< INTL: for mail from other countries
    Postal = 1U << 4U,        ///< POSTAL
    Parcel = 1U << 5U,        ///< PARCEL
    Billing = 1U << 6U,       ///< BILLING (RFC 9554)
    Delivery = 1U << 7U,      ///< DELIVERY (RFC 9554)
    Other = 1U << 8U,         ///< OTHER
};
Q_DECLARE_FLAGS( PimContactAddressKinds, PimContactAddressKind )
Q_FLAG_NS( PimContactAddressKinds )
Q_DECLARE_OPERATORS_FOR_FLAGS( PimContactAddressKinds )

/// The relation of another person to the contact. The values up to Emergency are those of RFC 6350, section 6.6.6.
enum class PimContactRelationKind : quint32
{
    Contact = 1U << 0U,          ///< CONTACT
    Acquaintance = 1U << 1U,     ///< ACQUAINTANCE
    Friend = 1U << 2U,           ///< FRIEND
    Met = 1U << 3U,              ///< MET
    CoWorker = 1U << 4U,         ///< CO-WORKER, COWORKER
    Colleague = 1U << 5U,        ///< COLLEAGUE
    CoResident = 1U << 6U,       ///< CO-RESIDENT, CORESIDENT
    Neighbor = 1U << 7U,         ///< NEIGHBOR, NEIGHBOUR
    Child = 1U << 8U,            ///< CHILD
    Parent = 1U << 9U,           ///< PARENT
    Sibling = 1U << 10U,         ///< SIBLING
    Spouse = 1U << 11U,          ///< SPOUSE
    Kin = 1U << 12U,             ///< KIN
    Muse = 1U << 13U,            ///< MUSE
    Crush = 1U << 14U,           ///< CRUSH
    Date = 1U << 15U,            ///< DATE
    Sweetheart = 1U << 16U,      ///< SWEETHEART
    Me = 1U << 17U,              ///< ME
    Agent = 1U << 18U,           ///< AGENT
    Emergency = 1U << 19U,       ///< EMERGENCY
    Assistant = 1U << 20U,       ///< ASSISTANT
    Manager = 1U << 21U,         ///< MANAGER
    ReferredBy = 1U << 22U,      ///< REFERRED-BY, REFERREDBY
    Partner = 1U << 23U,         ///< PARTNER
    DomesticPartner = 1U << 24U, ///< DOMESTIC-PARTNER, DOMESTICPARTNER
    Mother = 1U << 25U,          ///< MOTHER
    Father = 1U << 26U,          ///< FATHER
    Brother = 1U << 27U,         ///< BROTHER
    Sister = 1U << 28U,          ///< SISTER
    Relative = 1U << 29U,        ///< RELATIVE
};
Q_DECLARE_FLAGS( PimContactRelationKinds, PimContactRelationKind )
Q_FLAG_NS( PimContactRelationKinds )
Q_DECLARE_OPERATORS_FOR_FLAGS( PimContactRelationKinds )

} // namespace PimManager::Contacts
