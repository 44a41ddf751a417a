#include "Contact/Borrowed.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>

namespace PimManager::Contacts
{

namespace
{

struct Tool
{
    Tool() { ++s_count; }
    ~Tool() { --s_count; }
    Q_DISABLE_COPY( Tool )

    void Reset() { m_value = 0; }
    bool IsLarge() const { return m_isLarge; }

    int m_value = 0;
    bool m_isLarge = false;
    static thread_local int s_count;
};

thread_local int Tool::s_count = 0;

} // namespace

TEST( BorrowedTest, ObjectIsUsedAgainAfterAReset )
{
    const Tool* first = nullptr;
    {
        Borrowed<Tool> tool;
        tool->m_value = 7;
        first = tool.operator->();
    }
    Borrowed<Tool> again;
    EXPECT_EQ( again.operator->(), first );
    EXPECT_EQ( again->m_value, 0 );
}

TEST( BorrowedTest, TwoAtTheSameTimeAreDifferent )
{
    {
        Borrowed<Tool> first;
        Borrowed<Tool> second;
        EXPECT_NE( first.operator->(), second.operator->() );
    }
    EXPECT_EQ( Tool::s_count, 1 );
}

TEST( BorrowedTest, LargeObjectIsNotKept )
{
    {
        Borrowed<Tool> tool;
        tool->m_isLarge = true;
    }
    EXPECT_EQ( Tool::s_count, 0 );
}

TEST( BorrowedTest, ThreadsHaveObjectsOfTheirOwnAndDeleteThem )
{
    Borrowed<Tool> here;
    bool isSame = true;
    // Dies after the thread's spare object, so borrowing is over then.
    struct Last
    {
        ~Last() { *m_count = Borrowed<Tool>()->s_count - 1; }
        int* m_count = nullptr;
    };
    int left = -1;
    std::thread(
        [&isSame, &here, &left]
        {
            thread_local Last t_last;
            t_last.m_count = &left;
            const Borrowed<Tool> there;
            isSame = there.operator->() == here.operator->();
        } )
        .join();
    EXPECT_FALSE( isSame );
    EXPECT_EQ( left, 0 );
}

} // namespace PimManager::Contacts
