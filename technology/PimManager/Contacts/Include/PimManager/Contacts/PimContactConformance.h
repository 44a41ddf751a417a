/// \file
/// Checks whether a card conforms to the standard of its version.
///
/// \code
/// const QList<PimContactFinding> findings = PimContactConformance( card ).Findings();
/// for ( const PimContactFinding& finding : findings )
///     qInfo().noquote() << finding.Line() << finding.Text() << finding.Section();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactExport.h>

#include <QLatin1String>
#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactConformancePrivate;
class PimContactFindingPrivate;

/// The ways in which a card does not conform. NameOf() returns a word for programs, PimContactFinding::Text() a
/// sentence for people.
enum class PimContactFindingCode
{
    // The card.
    MissingVersion,   ///< There is no VERSION.
    UnknownVersion,   ///< VERSION is not 2.1, 3.0 or 4.0.
    MisplacedVersion, ///< 4.0: VERSION does not follow BEGIN.
    MissingBoundary,  ///< There is no BEGIN or no END.
    MissingProperty,  ///< The version requires a property that is not there.
    RepeatedProperty, ///< A property occurs more often than it may. In 4.0, lines with the same ALTID count as one.
    MemberOfNoGroup,  ///< 4.0: MEMBER in a card whose KIND is not `group`.
    NotCrLf,          ///< A line does not end in CR LF. Once a card.

    // The line.
    MalformedLine,   ///< The line does not have the form of a property, see PimContactOddity.
    LongLine,        ///< 3.0, 4.0: more than 75 octets without the line ending. Once a property.
    FoldInCharacter, ///< A fold divides a character of UTF-8. Once a property.
    NotUtf8,         ///< 4.0: the line is not in UTF-8.
    UnknownProperty, ///< The version does not have the property, and its name does not begin with `X-`.

    // The parameter.
    BareParameter,      ///< 3.0, 4.0: a parameter has no name. 2.1: a parameter that needs a name has none.
    UnknownParameter,   ///< The version does not have the parameter, and its name does not begin with `X-`.
    MisplacedParameter, ///< The parameter may not occur with this property.
    UnknownType,        ///< 2.1: a TYPE that is not listed.
    UnknownEncoding,    ///< ENCODING has a value that the version does not have.
    UnknownValueType,   ///< VALUE has a type that the version does not have.
    WrongValueType,     ///< VALUE has a type that the property does not allow.
    InvalidParameter,   ///< The value of a parameter is not valid.

    // The value.
    InvalidValue,   ///< The value is not valid for its type.
    ForbiddenValue, ///< The property does not allow the value: GENDER, KIND, CLIENTPIDMAP, PROFILE.
    ComponentCount, ///< Too few or too many components.
    BadEscape,      ///< 3.0, 4.0: a backslash before a character that has no escape.
};

/// The number of codes. Their values run from 0 to this number - 1.
constexpr int s_kPimContactFindingCodes = static_cast<int>( PimContactFindingCode::BadEscape ) + 1;

/// One finding. Implicitly shared and immutable.
class PIMCONTACT_EXPORT PimContactFinding
{
public:
    /// Creates a finding of code MissingVersion in line 1.
    PimContactFinding();
    PimContactFinding( const PimContactFinding& a_other );
    PimContactFinding& operator=( const PimContactFinding& a_other );
    ~PimContactFinding();

    /// The kind of finding.
    PimContactFindingCode Code() const;

    /// The number of the line in the file in which the property begins, from 1. If something is missing, the first line
    /// of the card. Filtered lines of the card are not counted.
    qint64 Line() const;

    /// \return an English sentence without a full stop, such as `FN is missing`. It may name properties and parameters
    ///         of the standards, but contains no text of the file.
    QString Text() const;

    /// \return the section that defines the rule, such as `RFC 6350, section 6.2.1`.
    QString Section() const;

private:
    friend class PimContactFindingPrivate; // creates findings
    QSharedDataPointer<PimContactFindingPrivate> d;
};

/// The result of checking a card against the standard that its VERSION names: vCard 2.1, RFC 2426 (3.0), or RFC 6350
/// with RFC 6474, 6715, 6868, 8605, 9554 and 9555 (4.0). Implicitly shared and immutable.
///
/// Properties and parameters whose names begin with `X-` conform, and so do properties whose names begin with `VND-` in
/// 4.0. If VALUE names the type of such a property, its value must be valid for that type. A card without a version or
/// with another version has only one finding. Nested cards are not checked. To check them, pass
/// PimContactLine::NestedCard().
///
/// A card that does not conform can still be read. For what the reader did about it, see PimContactReport.
class PIMCONTACT_EXPORT PimContactConformance
{
public:
    /// Creates the result of a null card: no findings.
    PimContactConformance();
    /// Checks a card. Linear in the length of the card.
    explicit PimContactConformance( const PimContactCard& a_card );
    PimContactConformance( const PimContactConformance& a_other );
    PimContactConformance& operator=( const PimContactConformance& a_other );
    ~PimContactConformance();

    /// \return true if there are no findings.
    bool IsConformant() const;

    /// \return the findings about the whole card, followed by those about its lines in their order.
    QList<PimContactFinding> Findings() const;

private:
    QSharedDataPointer<PimContactConformancePrivate> d;
};

/// \return a word in ASCII, such as `missing-property`. It never changes, so programs can rely on it.
PIMCONTACT_EXPORT QLatin1String NameOf( PimContactFindingCode a_code );

} // namespace PimManager::Contacts
