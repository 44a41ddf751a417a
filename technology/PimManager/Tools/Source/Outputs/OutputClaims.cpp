#include "Outputs/OutputClaims.h"

#include <unistd.h>

namespace PimManager::Tools
{

OutputClaims::OutputClaims( Console& a_console, const QList<QByteArray>& a_inputs, Existing a_existing ) :
    m_console( a_console ),
    m_existing( a_existing )
{
    for ( const QByteArray& input : a_inputs )
    {
        struct stat status = {};
        const int result = input == "-" ? ::fstat( STDIN_FILENO, &status ) : ::stat( input.constData(), &status );
        if ( result == 0 && HasOneUse( status ) )
            m_inputs.insert( FileIdentity::Of( status ) );
    }
}

bool OutputClaims::ClaimResults()
{
    const QString reason = Claim( OutputTarget( "-" ) );
    if ( !reason.isEmpty() )
        m_console.Tell( QStringLiteral( "standard output: cannot be written: " ) + reason );
    return reason.isEmpty();
}

QString OutputClaims::Claim( const OutputTarget& a_target )
{
    bool isNew = true;
    for ( const FileIdentity& identity : a_target.Identities() )
    {
        if ( m_inputs.count( identity ) > 0 )
            return QStringLiteral( "it is one of the files to read; choose another name" );
        isNew = m_outputs.insert( identity ).second && isNew;
    }
    if ( !isNew )
        return QStringLiteral( "another output goes there; choose another name" );
    const bool isStandardOutput = a_target.GetKind() == OutputTarget::Kind::StandardOutput;
    m_hasStandardOutput = m_hasStandardOutput || isStandardOutput;
    m_hasFiles = m_hasFiles || !isStandardOutput;
    return QString();
}

bool OutputClaims::IsUsed( const FileIdentity& a_file ) const
{
    return m_inputs.count( a_file ) > 0 || m_outputs.count( a_file ) > 0;
}

} // namespace PimManager::Tools
