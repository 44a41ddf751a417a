/// \file
/// What a loader tells a program.

#pragma once

#include <PimManager/PhoneBook/PimPhoneBookLoader.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QObject>
#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

/// Calls the slots of the program until a condition is true.
/// \return false if that takes too long.
inline bool WaitFor( const std::function<bool()>& a_isTrue )
{
    const QDeadlineTimer deadline( 120000 );
    while ( !a_isTrue() && !deadline.hasExpired() )
        QCoreApplication::processEvents( QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10 );
    return a_isTrue();
}

/// Writes down the signals of a loader.
struct LoaderEvents
{
    explicit LoaderEvents( PimPhoneBookLoader& a_loader ) :
        m_loader( a_loader )
    {
        using Loader = PimPhoneBookLoader;
        QObject::connect( &a_loader, &Loader::Grown, &m_context,
                          [this]( const PimPhoneBook& a_book ) { m_grown.push_back( a_book ); } );
        QObject::connect( &a_loader, &Loader::Loaded, &m_context,
                          [this]( const PimPhoneBook& a_book ) { m_loaded.push_back( a_book ); } );
        QObject::connect( &a_loader, &Loader::Failed, &m_context,
                          [this]( const QString& a_text ) { m_failed.push_back( a_text.toStdString() ); } );
        QObject::connect( &a_loader, &Loader::ProgressChanged, &m_context,
                          [this] { m_progress.push_back( m_loader.Progress() ); } );
        QObject::connect( &a_loader, &Loader::LoadingChanged, &m_context,
                          [this] { m_loading.push_back( m_loader.IsLoading() ); } );
    }

    bool WaitForEnd()
    {
        return WaitFor( [this] { return !m_loader.IsLoading(); } );
    }

    PimPhoneBookLoader& m_loader;
    QObject m_context;
    std::vector<PimPhoneBook> m_grown;
    std::vector<PimPhoneBook> m_loaded;
    std::vector<std::string> m_failed;
    std::vector<qreal> m_progress;
    std::vector<bool> m_loading;
};

/// Signals need an event loop, and an event loop needs this.
class LoaderTest : public testing::Test
{
private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_names[2] = { m_name, nullptr };
    QCoreApplication m_application{ m_count, m_names };
};

} // namespace PimManager::PhoneBook
