/// \file
/// Converts a card to objects of the component, for programs that were written for PimVCardParser.
///
/// A program that uses the objects must also include PimVCard.h and link PimManager::vCard.
///
/// \code
/// const PimContactVCard objects = PimContactVCard::FromCard( card );
/// for ( const PimManager::vCard::PimVCardProperty* property : objects->GetProperties() )
///     qInfo() << property->GetName() << property->GetValues();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QtGlobal>

#include <memory>

namespace PimManager::vCard
{
class PimVCard;
}

namespace PimManager::Contacts
{

class PimContactCard;
class PimContactVCardPrivate;

/// Owns the PimVCard that was created from a card. It can be moved, but not copied.
///
/// The PimVCard has one property for each line of the card, in the same order. VERSION is one of them; BEGIN and END
/// are not. Each value is split at its semicolons, as the component does. The objects do not refer to the card.
///
/// **Parsed.** If the component reads the bytes of the card without an error and without losing text, the objects are
/// those that PimVCardParser returns. QUOTED-PRINTABLE and BASE64 are not decoded, see PimVCard.h.
///
/// **Made.** For any other card, the objects are created from the values that Contacts decodes:
///
/// - Values are those of PimContactLine::Components(): QUOTED-PRINTABLE, BASE64 text and the character set are decoded,
///   and escapes are removed. CHARSET is left out, and so is any ENCODING that no longer applies.
/// - BASE64 that is not text is not decoded. White space in it is removed.
/// - Parameter values are quoted if they contain characters other than letters, digits and hyphens. Empty parameters
///   are left out. In versions 3.0 and 4.0, carets escape quotes and line feeds (RFC 6868).
/// - The value of a property with a nested card is the text of that card, with one line for each property and CR LF
///   after each line. To get its objects, pass PimContactLine::NestedCard() to FromCard().
///
/// Examples of such cards: a line ends in LF; a value contains `\n`; the text is not UTF-8; a fold has two blanks, and
/// the component would remove both.
///
/// Nothing is written to Qt's log. Different objects may be used in different threads at once.
class PIMCONTACT_EXPORT PimContactVCard
{
public:
    /// Creates a null object.
    PimContactVCard();
    PimContactVCard( PimContactVCard&& a_other ) noexcept;
    PimContactVCard& operator=( PimContactVCard&& a_other ) noexcept;
    ~PimContactVCard();
    Q_DISABLE_COPY( PimContactVCard )

    /// Converts a card. Linear in its length.
    /// \return the objects; null for a null card.
    static PimContactVCard FromCard( const PimContactCard& a_card );

    /// True if there is no card, which is so for a null card and after Take().
    bool IsNull() const;

    /// \return true if the objects are those of PimVCardParser. False if they were made from decoded values or if there
    ///         are none.
    bool IsParsed() const;

    /// \return the card. It is valid until this object is assigned to or destroyed. Null if there is none.
    const vCard::PimVCard* Get() const;

    /// \return the same. \pre IsNull() is false.
    const vCard::PimVCard* operator->() const { return Get(); }

    /// \return the card. The caller owns it, and this object is null afterwards. Null if there is none.
    std::unique_ptr<vCard::PimVCard> Take();

private:
    std::unique_ptr<PimContactVCardPrivate> d;
};

} // namespace PimManager::Contacts
