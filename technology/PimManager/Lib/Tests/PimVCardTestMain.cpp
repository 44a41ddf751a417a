// The main of every unit test: the tests run under the locale of the environment, as programs with a QCoreApplication
// do.

#include <gtest/gtest.h>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <langinfo.h>

namespace
{

// A locale that is missing gives "C" without a word, so who wants a certain one says which charset it has.
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
    // The tests know the messages of the system in English.
    setenv( "LANGUAGE", "en", 1 );
    std::setlocale( LC_ALL, "" );
    // A shell switches Ctrl-C off for what it runs in the background, and tests of Ctrl-C would wait for ever.
    std::signal( SIGINT, SIG_DFL );
    testing::InitGoogleTest( &argc, argv );
    return IsCharsetAsWanted() ? RUN_ALL_TESTS() : EXIT_FAILURE;
}
