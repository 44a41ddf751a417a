#include <PimManager/Contacts/PimContactConformance.h>

#include "Conformance/CardCheck.h"
#include "Conformance/Violations.h"
#include "Text/Bytes.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactFindingCode;

struct Entry
{
    Code m_code;
    const char* m_name;
    // "%1" is a property, or a parameter of a line without a known property; "%2" a parameter or a type.
    const char* m_text;
};

// In the order of the codes.
constexpr std::array<Entry, s_kPimContactFindingCodes> s_kEntries = { {
    { Code::MissingVersion, "missing-version", "VERSION is missing" },
    { Code::UnknownVersion, "unknown-version", "VERSION is not 2.1, 3.0 or 4.0" },
    { Code::MisplacedVersion, "misplaced-version", "VERSION does not follow BEGIN" },
    { Code::MissingBoundary, "missing-boundary", "%1 is missing" },
    { Code::MissingProperty, "missing-property", "%1 is missing" },
    { Code::RepeatedProperty, "repeated-property", "%1 may not occur again" },
    { Code::MemberOfNoGroup, "member-of-no-group", "MEMBER requires the KIND group" },
    { Code::NotCrLf, "not-cr-lf", "the line does not end in CR LF" },
    { Code::MalformedLine, "malformed-line", "the line does not have the form of a property" },
    { Code::LongLine, "long-line", "the line has more than 75 octets and is not folded" },
    { Code::FoldInCharacter, "fold-in-character", "a fold divides a character" },
    { Code::NotUtf8, "not-utf-8", "the line is not in UTF-8" },
    { Code::UnknownProperty, "unknown-property", "the version does not have this property" },
    { Code::BareParameter, "bare-parameter", "a parameter has no name" },
    { Code::UnknownParameter, "unknown-parameter", "the version does not have a parameter of the line" },
    { Code::MisplacedParameter, "misplaced-parameter", "%1 may not have the parameter %2" },
    { Code::UnknownType, "unknown-type", "TYPE is none that the version lists" },
    { Code::UnknownEncoding, "unknown-encoding", "the version does not have this ENCODING" },
    { Code::UnknownValueType, "unknown-value-type", "VALUE is no type of the version" },
    { Code::WrongValueType, "wrong-value-type", "%1 may not have the type %2" },
    { Code::InvalidParameter, "invalid-parameter", "the value of the parameter %2 is not valid" },
    { Code::InvalidValue, "invalid-value", "the value of %1 is not of the type %2" },
    { Code::ForbiddenValue, "forbidden-value", "%1 may not have this value" },
    { Code::ComponentCount, "component-count", "%1 has too few or too many components" },
    { Code::BadEscape, "bad-escape", "a backslash precedes a character that has no escape" },
} };

constexpr bool IsInOrder()
{
    int code = 0;
    for ( const Entry& entry : s_kEntries )
    {
        if ( static_cast<int>( entry.m_code ) != code++ )
            return false;
    }
    return true;
}
static_assert( IsInOrder() );

const Entry& EntryOf( Code a_code )
{
    return s_kEntries[static_cast<size_t>( a_code )];
}

} // namespace

class PimContactConformancePrivate : public QSharedData
{
public:
    QList<PimContactFinding> m_findings;
};

PimContactFinding PimContactFindingPrivate::Create( const Violation& a_violation )
{
    PimContactFinding finding;
    finding.d->m_violation = a_violation;
    return finding;
}

PimContactFinding::PimContactFinding() :
    d( new PimContactFindingPrivate )
{
}

PimContactFinding::PimContactFinding( const PimContactFinding& a_other ) = default;
PimContactFinding& PimContactFinding::operator=( const PimContactFinding& a_other ) = default;
PimContactFinding::~PimContactFinding() = default;

PimContactFindingCode PimContactFinding::Code() const
{
    return d->m_violation.m_code;
}

qint64 PimContactFinding::Line() const
{
    return d->m_violation.m_line;
}

QString PimContactFinding::Text() const
{
    QString text = QString::fromLatin1( EntryOf( d->m_violation.m_code ).m_text );
    text.replace( QLatin1String( "%1" ), StringOf( d->m_violation.m_subject ) );
    return text.replace( QLatin1String( "%2" ), StringOf( d->m_violation.m_detail ) );
}

QString PimContactFinding::Section() const
{
    return TextOf( d->m_violation.m_section );
}

PimContactConformance::PimContactConformance() :
    d( new PimContactConformancePrivate )
{
}

PimContactConformance::PimContactConformance( const PimContactCard& a_card ) :
    PimContactConformance()
{
    d->m_findings = CardCheck( a_card ).Findings();
}

PimContactConformance::PimContactConformance( const PimContactConformance& a_other ) = default;
PimContactConformance& PimContactConformance::operator=( const PimContactConformance& a_other ) = default;
PimContactConformance::~PimContactConformance() = default;

bool PimContactConformance::IsConformant() const
{
    return d->m_findings.isEmpty();
}

QList<PimContactFinding> PimContactConformance::Findings() const
{
    return d->m_findings;
}

QLatin1String NameOf( PimContactFindingCode a_code )
{
    return QLatin1String( EntryOf( a_code ).m_name );
}

} // namespace PimManager::Contacts
