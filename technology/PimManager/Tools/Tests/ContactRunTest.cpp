#include "Reading/ContactRun.h"

#include "Outputs/RejectsFile.h"
#include "Page/ContactPage.h"
#include "ProgramRun.h"
#include "TestBooks.h"

#include <fcntl.h>
#include <new>
#include <unistd.h>

using namespace PimManager::Tools;

namespace
{

// A page whose memory ends behind the first card.
class CutPage : public ContactPage
{
public:
    using ContactPage::ContactPage;

    void TakeCard( const BookInRun& a_book, const PimManager::Contacts::PimContactCard& a_card ) override
    {
        if ( a_card.Number() > 1 )
            throw std::bad_alloc();
        ContactPage::TakeCard( a_book, a_card );
    }
};

} // namespace

TEST( ContactRunTest, OutputThatRunsOutOfMemoryIsNotPublishedAndOthersAre )
{
    const Folder folder;
    const FileDescriptor messages( open( folder.Write( "messages", "" ).constData(), O_WRONLY | O_CLOEXEC ) );
    OutputDevice device( messages.Number() );
    Console console( device, device );
    const QByteArray book = folder.Write( "book", PartCard() + CleanCard() );
    const QByteArray page = folder.Write( "page", "old" );
    const QByteArray rejects = folder.Path( "rejects" );
    OutputClaims claims( console, { book }, Existing::Replace );
    ContactRun::Outputs outputs;
    outputs.push_back( std::make_unique<RejectsFile>( rejects, claims ) );
    outputs.push_back( std::make_unique<CutPage>( page, claims ) );
    {
        ContactRun run( console, BookOptions(), std::move( outputs ), BookRun::WithoutReader::GoOn );
        EXPECT_EQ( int( run.Run( { book } ) ), int( ExitStatus::Trouble ) );
    }
    EXPECT_EQ( FileContent( page ).toStdString(), "old" );
    EXPECT_EQ( FileContent( rejects ), "\x01\x02 %%%\r\n" );
    EXPECT_EQ( NamesIn( folder.Path( "" ) ), "book\nmessages\npage\nrejects\n" );
    EXPECT_EQ( FileContent( folder.Path( "messages" ) ).toStdString(),
               "pimvcard: " + book.toStdString() + ": there is not enough memory\npimvcard: " + page.toStdString() +
                   ": cannot be written: there is not enough memory\n" );
}
