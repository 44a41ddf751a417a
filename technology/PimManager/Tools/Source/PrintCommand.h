/// \file
/// `pimvcard print`.

#pragma once

#include "Console.h"
#include "ExitStatus.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QString>

#include <memory>

namespace PimManager::vCard::Tools
{

class CardWriter;
class CommandLine;
struct BookAccount;

/// Prints the cards of files, tells what did not come, and sums up.
class PrintCommand
{
public:
    /// What the command does, in a few words.
    static QString Summary();

    /// \param a_console must outlive the command.
    explicit PrintCommand( Console& a_console );
    ~PrintCommand();
    Q_DISABLE_COPY( PrintCommand )

    /// Runs the command once.
    /// \param a_arguments what the user wrote, without the name of the program and of the command.
    ExitStatus Run( const QList<QByteArray>& a_arguments );

private:
    ExitStatus PrintFiles( const QList<QByteArray>& a_fileNames );
    ExitStatus PrintFile( const QByteArray& a_fileName );
    ExitStatus RefuseFile( const QString& a_source, const QString& a_reason );
    BookAccount PrintBook( QByteArray&& a_bytes, const QString& a_source );
    void TakeAccount( const BookAccount& a_account, const QString& a_source );
    QString Totals() const;

    Console& m_console;
    std::unique_ptr<CardWriter> m_writer;
    bool m_isLogShown = false;
    QElapsedTimer m_timer;
    qint64 m_files = 0;
    qint64 m_unreadFiles = 0;
    qint64 m_cards = 0;
    qint64 m_refused = 0;
};

} // namespace PimManager::vCard::Tools
