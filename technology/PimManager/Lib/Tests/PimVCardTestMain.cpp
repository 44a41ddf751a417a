// The main function of every unit test. The tests run with the locale of the environment, as programs with a
// QCoreApplication do.

#include <gtest/gtest.h>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <langinfo.h>

namespace
{

// A missing locale silently becomes "C". A caller that needs a certain locale therefore names its charset.
bool IsCharsetAsWanted()
{
    const char* const wanted = std::getenv( "PIMVCARD_TEST_CHARSET" );
    const char* const charset = nl_langinfo( CODESET );
    if ( wanted == nullptr || std::strcmp( wanted, charset ) == 0 )
        return true;
    std::fprintf( stderr, "The charset of the locale is %s instead of %s.\n", charset, wanted );
    return false;
}

} // namespace

int main( int argc, char* argv[] )
{
    // The tests expect the messages of the system in English.
    setenv( "LANGUAGE", "en", 1 );
    std::setlocale( LC_ALL, "" );
    // A shell disables Ctrl-C for background processes. Tests of Ctrl-C would then wait forever.
    std::signal( SIGINT, SIG_DFL );
    testing::InitGoogleTest( &argc, argv );
    return IsCharsetAsWanted() ? RUN_ALL_TESTS() : EXIT_FAILURE;
}
