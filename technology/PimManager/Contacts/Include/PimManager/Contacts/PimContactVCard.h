/// \file
/// A card as objects of the component, for programs that were written for PimVCardParser.
///
/// A program that uses the objects includes PimVCard.h as well, and links PimManager::vCard.
///
/// \code
/// for ( const PimContactCard& card : book )
/// {
///     const PimContactVCard objects = PimContactVCard::FromCard( card );
///     for ( const PimManager::vCard::PimVCardProperty* property : objects->GetProperties() )
///         qInfo() << property->GetName() << property->GetValues();
/// }
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

/// Owns the PimVCard of a card. It can be moved, but not copied.
///
/// There is a property for each line of the card, in the same order; VERSION is one of them, BEGIN and END are not. All
/// values are split at their semicolons, as the component does. The objects do not refer to the card.
///
/// **Parsed.** If the component reads the card without an error and without loss, the objects are those that
/// PimVCardParser returns for PimContactCard::Bytes(). QUOTED-PRINTABLE and BASE64 are then not decoded, see PimVCard.h.
///
/// **Made.** Otherwise, the objects are made from the line's decoded texts:
///
/// - The texts are those of PimContactLine::Components(): the character set and QUOTED-PRINTABLE are decoded, and
///   escapes are removed. CHARSET is left out, and so is each ENCODING that no longer applies.
/// - BASE64 is not decoded, but white space in it is removed.
/// - Quotes and the carets of RFC 6868 are used in parameter values only where they are needed. Empty parameters are left
///   out.
/// - The value of a property that holds a nested card is the text of that card: lines without folds that end in CR LF.
///   FromCard() of PimContactLine::NestedCard() returns its objects.
///
/// The component loses text of a card that is not UTF-8, or that has no CR LF at the end of each line, byte order marks,
/// folds with more than one blank, or an encoded line break at the end of a line. Such a card is made. So is any other
/// card that the component refuses, for example because of `\n` in a value.
///
/// Nothing is written to Qt's log. Different objects may be used in different threads.
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

    /// True if there is no card: for a null card, and after Take().
    bool IsNull() const;

    /// \return true if the objects are those of PimVCardParser, false if they were made or if there are none.
    bool IsParsed() const;

    /// \return the card, which is valid until this object is assigned or destroyed; null if there is none.
    const vCard::PimVCard* Get() const;

    /// \return the same. \pre IsNull() is false.
    const vCard::PimVCard* operator->() const { return Get(); }

    /// \return the card, which now belongs to the caller; null if there is none. This object is null afterwards.
    std::unique_ptr<vCard::PimVCard> Take();

private:
    std::unique_ptr<PimContactVCardPrivate> d;
};

} // namespace PimManager::Contacts
