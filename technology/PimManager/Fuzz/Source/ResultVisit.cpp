#include "ResultVisit.h"

#include "PimVCard.h"
#include "PimVCardVocabulary.h"

#include <QRegularExpression>

namespace PimManager::vCard::Fuzz
{

namespace
{

// The form of the texts of a result. A quoted text contains no control character, no quote and no U+FEFF.
struct Shapes
{
    static QRegularExpression Whole( const char* a_pattern )
    {
        return QRegularExpression( QRegularExpression::anchoredPattern( QLatin1String( a_pattern ) ) );
    }

    const QRegularExpression m_name = Whole( "[A-Za-z0-9-]+" );
    const QRegularExpression m_group = Whole( "[A-Za-z0-9.-]*" );
    const QRegularExpression m_quotedRest = Whole( R"([^"\x00-\x08\x0A-\x1F\x7F\x{FEFF}]+")" );
    const QRegularExpression m_parameterValue =
        Whole( R"(([A-Za-z0-9-]+|"[^"\x00-\x08\x0A-\x1F\x7F\x{FEFF}]+")(,(?1))*)" );
    const QRegularExpression m_propertyValue = Whole( R"([^\x00-\x08\x0B-\x1F\x7F\x{FEFF}]*)" );
};

const Shapes& KnownShapes()
{
    static const Shapes s_shapes;
    return s_shapes;
}

bool IsOfShape( const QRegularExpression& a_shape, const QString& a_text )
{
    return a_shape.match( a_text ).hasMatch();
}

} // namespace

void ResultVisit::Expect( bool a_holds, const char* a_property, const QString& a_culprit )
{
    if ( !a_holds && m_violation.isEmpty() )
        m_violation = QLatin1String( a_property ) + QLatin1String( ": " ) + Shown( a_culprit );
}

void ResultVisit::Note( const QString& a_text )
{
    if ( !a_text.isEmpty() )
        m_texts.append( a_text );
}

void ResultVisit::Visit( const PimVCard* a_vCard )
{
    Expect( a_vCard != nullptr, "no card is null", QString() );
    if ( a_vCard == nullptr )
        return;
    for ( const PimVCardProperty* property : a_vCard->GetProperties() )
    {
        Visit( property );
        const bool isEnd = property != nullptr && property->GetName().compare( s_kEnd, Qt::CaseInsensitive ) == 0;
        Expect( !isEnd, "a card holds no END line", s_kEnd );
    }
}

void ResultVisit::Visit( const PimVCardProperty* a_property )
{
    Expect( a_property != nullptr, "no property is null", QString() );
    if ( a_property == nullptr )
        return;
    a_property->Print( "" );
    VisitGroup( a_property->GetGroupID() );
    Expect( IsOfShape( KnownShapes().m_name, a_property->GetName() ), "a property has a name", a_property->GetName() );
    Note( a_property->GetName() );
    VisitAll( a_property->GetParameters() );
    VisitValues( a_property->GetValues() );
}

void ResultVisit::Visit( const PimVCardParameter* a_parameter )
{
    Expect( a_parameter != nullptr, "no parameter is null", QString() );
    if ( a_parameter == nullptr )
        return;
    const QString name = a_parameter->GetName();
    Expect( name.isEmpty() || IsOfShape( KnownShapes().m_name, name ), "a parameter name holds name characters only",
            name );
    Expect( IsOfShape( KnownShapes().m_parameterValue, a_parameter->GetValue() ),
            "a parameter value is names and quoted texts", a_parameter->GetValue() );
    Note( name );
    Note( a_parameter->GetValue() );
}

void ResultVisit::VisitGroup( const QString& a_group )
{
    Expect( IsOfShape( KnownShapes().m_group, a_group ), "a group holds names and dots only", a_group );
    Note( a_group );
}

void ResultVisit::VisitValues( const QList<QString>& a_values )
{
    Expect( !a_values.isEmpty(), "there is at least one value", QString() );
    for ( const QString& value : a_values )
    {
        Expect( IsOfShape( KnownShapes().m_propertyValue, value ), "a value holds no control character", value );
        Note( value );
    }
}

void ResultVisit::VisitQuotedRest( const QString& a_text )
{
    Expect( IsOfShape( KnownShapes().m_quotedRest, a_text ), "a quoted text is not empty and closes", a_text );
    Note( a_text );
}

} // namespace PimManager::vCard::Fuzz
