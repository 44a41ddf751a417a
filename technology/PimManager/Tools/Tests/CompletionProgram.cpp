// Prints the completion for a shell; scripts/update-completion runs it.

#include "Commands/BashCompletion.h"
#include "Commands/ZshCompletion.h"

#include <cstdio>

using namespace PimManager::Tools;

int main( int a_count, char* a_arguments[] )
{
    const QByteArray shell = a_count == 2 ? a_arguments[1] : "";
    if ( shell != "bash" && shell != "zsh" )
    {
        std::fputs( "usage: pimvcard-completion bash|zsh\n", stderr );
        return 2;
    }
    const QByteArray script =
        shell == "bash" ? BashCompletion( Commands(), CommonOptions() ) : ZshCompletion( Commands(), CommonOptions() );
    const auto size = static_cast<size_t>( script.size() );
    return std::fwrite( script.constData(), 1, size, stdout ) == size && std::fflush( stdout ) == 0 ? 0 : 1;
}
