#include "Outputs/DiagnosticText.h"

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

// What the user can do about it.
QString AdviceOn( PimContactDiagnosticCode a_code )
{
    const QString option = LimitOptionOf( a_code );
    if ( !option.isEmpty() )
        return QStringLiteral( "; raise " ) + option;
    switch ( a_code )
    {
    case PimContactDiagnosticCode::Charset:
        return QStringLiteral( ", see --charset" );
    case PimContactDiagnosticCode::CompressedFile:
        return QStringLiteral( "; unpack it first" );
    case PimContactDiagnosticCode::DocumentFile:
    case PimContactDiagnosticCode::ImageFile:
    case PimContactDiagnosticCode::HtmlFile:
        return QStringLiteral( "; export the contacts as vCard" );
    default:
        return QString();
    }
}

} // namespace

QString LimitOptionOf( PimContactDiagnosticCode a_code )
{
    switch ( a_code )
    {
    case PimContactDiagnosticCode::CardTooLong:
        return QStringLiteral( "--max-card-bytes" );
    case PimContactDiagnosticCode::LineTooLong:
        return QStringLiteral( "--max-line-bytes" );
    case PimContactDiagnosticCode::CardOfManyLines:
        return QStringLiteral( "--max-card-lines" );
    case PimContactDiagnosticCode::NestingTooDeep:
        return QStringLiteral( "--max-nesting" );
    case PimContactDiagnosticCode::TooManyCards:
        return QStringLiteral( "--max-cards" );
    case PimContactDiagnosticCode::BookTooLong:
        return QStringLiteral( "--max-book-bytes" );
    default:
        return QString();
    }
}

QString DiagnosticText( const QString& a_source, const PimContactDiagnostic& a_diagnostic )
{
    const QLatin1Char colon( ':' );
    return a_source + colon + QString::number( a_diagnostic.Line() ) + colon +
           QString::number( a_diagnostic.Column() ) + QStringLiteral( ": " ) +
           QString( NameOf( a_diagnostic.Severity() ) ) + QStringLiteral( ": " ) + a_diagnostic.Text() +
           AdviceOn( a_diagnostic.Code() ) + QStringLiteral( " [" ) + QString( NameOf( a_diagnostic.Code() ) ) +
           QLatin1Char( ']' );
}

} // namespace PimManager::Tools
