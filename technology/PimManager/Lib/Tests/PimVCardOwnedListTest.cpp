#include "PimVCardOwnedList.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace PimManager::vCard
{

namespace
{

/// Adds its name to a record when it is deleted.
class Element
{
public:
    Element( char a_name, std::string& a_record ) :
        m_name( a_name ),
        m_record( a_record )
    {
    }
    ~Element() { m_record += m_name; }
    Q_DISABLE_COPY( Element )

    char Name() const { return m_name; }

private:
    const char m_name;
    std::string& m_record;
};

using Elements = OwnedElements<Element, 2>;

void Fill( Elements& a_elements, const std::string& a_names, std::string& a_record )
{
    for ( const char name : a_names )
        a_elements.Append( std::make_unique<Element>( name, a_record ) );
}

} // namespace

// The last row has more elements than there is room for.
TEST( OwnedElementsTest, ElementsThatWereNotTakenAreDeletedFirstToLast )
{
    for ( const std::string names : { "", "a", "ab", "abcdef" } )
    {
        SCOPED_TRACE( names );
        std::string record;
        {
            Elements elements;
            Fill( elements, names, record );
            EXPECT_EQ( "", record );
        }
        EXPECT_EQ( names, record );
    }
}

TEST( OwnedElementsTest, ListTakesOverElementsInOrder )
{
    std::string record;
    QList<Element*>* list = nullptr;
    {
        Elements elements;
        Fill( elements, "abc", record );
        EXPECT_EQ( 'c', elements.Last().Name() );
        list = elements.TakeAsList();
    }
    EXPECT_EQ( "", record );
    std::string names;
    for ( const Element* element : *list )
        names += element->Name();
    EXPECT_EQ( "abc", names );
    DeleteOwnedList( list );
    EXPECT_EQ( "abc", record );
}

TEST( OwnedListTest, ElementsAreDeletedFirstToLastAndNullIsSkipped )
{
    std::string record;
    auto* const list = new QList<Element*>{ new Element( 'a', record ), nullptr, new Element( 'b', record ) };
    DeleteOwnedList( list );
    EXPECT_EQ( "ab", record );
    DeleteOwnedList( static_cast<QList<Element*>*>( nullptr ) );
    EXPECT_EQ( "ab", record );
}

} // namespace PimManager::vCard
