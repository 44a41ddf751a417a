// phonebook-worker FILE [COUNT]: reads an address book in a separate thread. The main thread prints contacts and
// progress as they arrive and never waits for the file. With COUNT, it cancels the reading after this many contacts.
// The exit status is 0 at the end of the file, 1 if the file cannot be read, 2 for wrong usage, and 3 after a cancel.
#include "Phonebook.h"

#include <QCoreApplication>

#include <iostream>

namespace
{

QString TextOf( const Number& a_number )
{
    const QString kind = a_number.m_isMobile ? QStringLiteral( "mobile" ) : QString();
    const QString purpose = a_number.m_label.isEmpty() ? kind : a_number.m_label;
    return purpose.isEmpty() ? a_number.m_text : QStringLiteral( "%1 (%2)" ).arg( a_number.m_text, purpose );
}

// Prints the number to call, and how many numbers there are.
void PrintContacts( const Contacts& a_contacts, int a_first, int a_count )
{
    for ( const Contact& contact : a_contacts.mid( a_first, a_count ) )
        std::cout << contact.m_name.toStdString() << ": " << TextOf( contact.m_preferred ).toStdString() << ", "
                  << contact.m_numbers.size() << " in all\n";
}

void PrintEnd( qint64 a_contacts, qint64 a_refused, bool a_isCancelled )
{
    std::cout << a_contacts << " contacts, " << a_refused << " cards refused" << ( a_isCancelled ? ", cancelled" : "" )
              << '\n';
}

void PrintWhatComes( Phonebook& a_phonebook, int a_enough )
{
    QObject::connect( &a_phonebook, &Phonebook::ContactsAdded, &a_phonebook,
                      [&a_phonebook, a_enough]( int a_first, int a_count )
                      {
                          PrintContacts( a_phonebook.AllContacts(), a_first, a_count );
                          if ( a_enough > 0 && a_first + a_count >= a_enough )
                              a_phonebook.Cancel();
                      } );
    QObject::connect( &a_phonebook, &Phonebook::Progress, &a_phonebook,
                      []( int a_percent ) { std::cout << a_percent << " %\n"; } );
}

void EndWith( Phonebook& a_phonebook )
{
    QObject::connect( &a_phonebook, &Phonebook::Finished, &a_phonebook,
                      [&a_phonebook]( qint64 a_refused, bool a_isCancelled )
                      {
                          PrintEnd( a_phonebook.AllContacts().size(), a_refused, a_isCancelled );
                          QCoreApplication::exit( a_isCancelled ? 3 : 0 );
                      } );
    QObject::connect( &a_phonebook, &Phonebook::Failed, &a_phonebook,
                      []( const QString& a_reason )
                      {
                          std::cout << "phonebook-worker: " << a_reason.toStdString() << '\n';
                          QCoreApplication::exit( 1 );
                      } );
}

} // namespace

int main( int argc, char* argv[] )
{
    const QCoreApplication application( argc, argv );
    const QStringList words = QCoreApplication::arguments();
    if ( words.size() < 2 || words.size() > 3 )
    {
        std::cout << "Usage: phonebook-worker FILE [COUNT]\n";
        return 2;
    }
    Phonebook phonebook( words[1] );
    PrintWhatComes( phonebook, words.value( 2 ).toInt() );
    EndWith( phonebook );
    phonebook.Open();
    return QCoreApplication::exec();
}
