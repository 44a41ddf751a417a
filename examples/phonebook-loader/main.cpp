// phonebook-loader FILE [COUNT]: reads an address book in a separate thread. The main thread prints contacts and
// progress as they arrive and never waits for the file. With COUNT, it stops the reading after this many contacts. The
// exit status is 0 at the end of the file, 1 if the file cannot be read, 2 for wrong usage, and 3 after a stop.
#include <PimManager/PhoneBook/PimPhoneBookLoader.h>

#include <QCoreApplication>
#include <QStringList>

#include <iostream>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

namespace
{

enum Status
{
    s_kLoaded,
    s_kFailed,
    s_kWrongUse,
    s_kStopped
};

class Program
{
public:
    Program( PimPhoneBookLoader& a_loader, int a_enough );

private:
    void Print( const PimPhoneBook& a_phoneBook );
    void End() const;

    PimPhoneBookLoader& m_loader;
    int m_printed = 0;
    Status m_status = s_kStopped;
};

Program::Program( PimPhoneBookLoader& a_loader, int a_enough ) :
    m_loader( a_loader )
{
    using Loader = PimPhoneBookLoader;
    QObject::connect( &a_loader, &Loader::ProgressChanged, &a_loader,
                      [this] { std::cout << static_cast<int>( m_loader.Progress() * 100 ) << " %\n"; } );
    QObject::connect( &a_loader, &Loader::Grown, &a_loader,
                      [this, a_enough]( const PimPhoneBook& a_phoneBook )
                      {
                          Print( a_phoneBook );
                          if ( a_enough > 0 && m_printed >= a_enough )
                              m_loader.Stop();
                      } );
    QObject::connect( &a_loader, &Loader::Loaded, &a_loader,
                      [this]( const PimPhoneBook& a_phoneBook )
                      {
                          Print( a_phoneBook );
                          m_status = s_kLoaded;
                      } );
    QObject::connect( &a_loader, &Loader::Failed, &a_loader, [this] { m_status = s_kFailed; } );
    QObject::connect( &a_loader, &Loader::LoadingChanged, &a_loader, [this] { End(); } );
}

// The loader gives all contacts so far. Those that were printed before are the first ones.
void Program::Print( const PimPhoneBook& a_phoneBook )
{
    for ( ; m_printed < a_phoneBook.Size(); ++m_printed )
    {
        const PimContact contact = a_phoneBook.At( m_printed );
        const PimContactPhone phone = contact.Phones().Preferred();
        std::cout << contact.DisplayName().toStdString() << ": " << phone.Text().toStdString();
        if ( !phone.Purpose().isEmpty() )
            std::cout << " (" << phone.Purpose().toStdString() << ")";
        std::cout << '\n';
    }
}

void Program::End() const
{
    if ( m_loader.IsLoading() )
        return;
    if ( m_status == s_kFailed )
        std::cout << "phonebook-loader: " << m_loader.ErrorText().toStdString() << '\n';
    std::cout << m_printed << " contacts, " << m_loader.Report().CardsRefused() << " cards refused"
              << ( m_status == s_kStopped ? ", stopped" : "" ) << '\n';
    QCoreApplication::exit( m_status );
}

} // namespace

int main( int argc, char* argv[] )
{
    const QCoreApplication application( argc, argv );
    const QStringList words = QCoreApplication::arguments();
    if ( words.size() < 2 || words.size() > 3 )
    {
        std::cout << "Usage: phonebook-loader FILE [COUNT]\n";
        return s_kWrongUse;
    }
    PimPhoneBookLoader loader;
    const Program program( loader, words.value( 2 ).toInt() );
    loader.Load( words[1] );
    return QCoreApplication::exec();
}
