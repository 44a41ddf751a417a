/// \file
/// What a contact list needs of a card: values as text, pictures as bytes, the words of a TYPE. The component delivers
/// values as written; these functions read them. They work on any card, imported or not, and keep nothing.
///
/// \code
/// out << DisplayNameOf( card ) << '\n';
/// for ( const PimVCardProperty* property : card.GetProperties() )
///     if ( IsNamed( *property, "TEL" ) )
///         out << TelephoneNumberOf( *property ) << ' ' << TypesOf( *property ).join( QLatin1Char( ' ' ) ) << '\n';
/// \endcode

#pragma once

#include "PimVCard.h"
#include "PimVCardExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

namespace PimManager::vCardImport
{

/// How the value of a property is encoded, by its ENCODING parameter or by a bare word.
enum class PimVCardEncoding
{
    None,
    QuotedPrintable,
    Base64,
};

/// The parts of an N property (RFC 2426, section 3.1.2). What is not there is empty. Several given names or prefixes
/// stay one text with the commas of the card.
struct PimVCardName
{
    QString m_family;     ///< family name
    QString m_given;      ///< given name
    QString m_additional; ///< further given names
    QString m_prefixes;   ///< such as `Dr.`
    QString m_suffixes;   ///< such as `jr.`
};

/// The parts of an ADR property (RFC 2426, section 3.2.1). What is not there is empty.
struct PimVCardAddress
{
    QString m_postOfficeBox; ///< post office box
    QString m_extended;      ///< such as a floor
    QString m_street;        ///< street and number
    QString m_locality;      ///< town
    QString m_region;        ///< state or county
    QString m_postalCode;    ///< postal code
    QString m_country;       ///< country
};

/// A picture, a sound or a key.
struct PimVCardAttachment
{
    /// Empty when the value is an address and not the thing itself.
    QByteArray m_bytes;
    /// Found from the bytes, such as `image/jpeg`; where they tell nothing, what the card says, if that is well-formed;
    /// else empty.
    QString m_mediaType;
    /// A file name ending without a dot for the media type: `jpg`, `png`, `gif`, `bmp`, `webp`, `tiff`, `heic`, `ico`,
    /// `wav`, `mp3`, `ogg`; else `bin`. Never taken from the card.
    QString m_fileEnding;
    /// The address, when the value is one that is not a `data:` URI; else empty.
    QString m_address;
};

/// Which way a call went.
enum class PimVCardCallDirection
{
    Unknown,
    Dialed,
    Received,
    Missed,
};

/// An entry of a phone's call list (X-IRMC-CALL-DATETIME).
struct PimVCardCall
{
    /// Unknown when the card does not say.
    PimVCardCallDirection m_direction = PimVCardCallDirection::Unknown;
    /// Invalid when the card gives no time or one that cannot be read. In UTC when it ends in Z, else local time.
    QDateTime m_when;
};

/// \param a_name in ASCII, compared in any letter case; not null. Empty for a property without a name.
/// \return true if the property has this name.
PIMVCARD_EXPORT bool IsNamed( const vCard::PimVCardProperty& a_property, const char* a_name );

/// \param a_name as for IsNamed().
/// \return the first property of this name in the order of the card, null if there is none. It belongs to the card.
///         Linear in the number of properties.
PIMVCARD_EXPORT const vCard::PimVCardProperty* FindProperty( const vCard::PimVCard& a_card, const char* a_name );

/// \return the encoding: `ENCODING=` with QUOTED-PRINTABLE, BASE64 or B, quoted or not, or one of these words bare. The
///         first of them counts, ENCODING before bare words; None without any, or with another word.
PIMVCARD_EXPORT PimVCardEncoding EncodingOf( const vCard::PimVCardProperty& a_property );

/// \return the values of all parameters of this name, lists split at their commas, without quotes, and with `^n`, `^'`
///         and `^^` decoded (RFC 6868). For `TEL;TYPE="home,cell";TYPE=voice` and TYPE: home, cell, voice.
///         Empty when there is none.
/// \param a_name in ASCII, compared in any letter case; not null, empty for bare words.
PIMVCARD_EXPORT QStringList ParameterValuesOf( const vCard::PimVCardProperty& a_property, const char* a_name );

/// \return the first of them, empty if there is none. For ALTID, LANGUAGE, MEDIATYPE and the like.
PIMVCARD_EXPORT QString ParameterValueOf( const vCard::PimVCardProperty& a_property, const char* a_name );

/// \return the words of TYPE and the bare words, in upper case, each once, in the order of the line, without PREF, and
///         without words that say how the value is written: encodings, and the values of VALUE and CHARSET. Empty when
///         there is none.
PIMVCARD_EXPORT QStringList TypesOf( const vCard::PimVCardProperty& a_property );

/// \return the preference from 1 (most) to 100: that of PREF= (RFC 6350, section 5.3), 1 for the word PREF, 0 for
///         none. A PREF= that is no such number counts as none.
PIMVCARD_EXPORT int PreferenceOf( const vCard::PimVCardProperty& a_property );

/// \return the values as text: QUOTED-PRINTABLE decoded, in the character set of CHARSET, in UTF-8 without one; where
///         that does not fit the bytes, in Windows-1252. Line ends become line feeds. BASE64 that holds text is decoded
///         too when the property is not a picture, sound or key. What does not hold text, and an "=" that encodes
///         nothing, stays as written. As many elements as the property has values, an empty one for an empty value.
PIMVCARD_EXPORT QStringList TextsOf( const vCard::PimVCardProperty& a_property );

/// \return TextsOf() joined by semicolons: the text of a property that has one value, such as NOTE.
PIMVCARD_EXPORT QString TextOf( const vCard::PimVCardProperty& a_property );

/// \return the parts of an N property. Any other property is taken in the same order. Blanks at both ends of a
///         part are taken away, and further values left out.
PIMVCARD_EXPORT PimVCardName NameOf( const vCard::PimVCardProperty& a_property );

/// \return the parts of an ADR property. Any other property is taken in the same order. Blanks at both ends of a
///         part are taken away, and further values left out.
PIMVCARD_EXPORT PimVCardAddress AddressOf( const vCard::PimVCardProperty& a_property );

/// \return the parts of an ADR property as lines for people, parted by line feeds, without empty ones; empty when all
///         parts are.
PIMVCARD_EXPORT QString AddressTextOf( const vCard::PimVCardProperty& a_property );

/// \return what a contact list shows: FN; else the parts of N in the order of speech; else NICKNAME, ORG, an EMAIL, a
///         TEL, in this order. Empty when the card has none of these. Blanks at both ends are taken away.
PIMVCARD_EXPORT QString DisplayNameOf( const vCard::PimVCard& a_card );

/// \return the number without `tel:` and its parameters, percent-decoded (RFC 3966); any other value as TextOf().
///         Empty for an empty value.
PIMVCARD_EXPORT QString TelephoneNumberOf( const vCard::PimVCardProperty& a_property );

/// \return the address without `mailto:`, percent-decoded; any other value as TextOf(). Empty for an empty value.
PIMVCARD_EXPORT QString MailAddressOf( const vCard::PimVCardProperty& a_property );

/// \return the picture, sound or key of a property: BASE64, a `data:` URI, or an address. What cannot be decoded gives
///         no bytes. Linear in the length of the value.
PIMVCARD_EXPORT PimVCardAttachment AttachmentOf( const vCard::PimVCardProperty& a_property );

/// \return the label that X-ABLabel gives to the group of a property, `_$!<` and `>!$_` round it taken away; empty
///         when the property has no group or the group no label. Linear in the number of properties.
PIMVCARD_EXPORT QString LabelOf( const vCard::PimVCard& a_card, const vCard::PimVCardProperty& a_property );

/// \return the entry when the property is an X-IRMC-CALL-DATETIME, else nothing.
PIMVCARD_EXPORT std::optional<PimVCardCall> CallOf( const vCard::PimVCardProperty& a_property );

} // namespace PimManager::vCardImport
