// The JSON of hostile texts has what the lines of their cards return.

#include "LineComparison.h"

#include "ReaderShapes.h"

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

TEST( JsonShapesTest, PropertiesAreThoseOfTheLines )
{
    constexpr int s_kLength = 3000;
    for ( const auto& shape : vCard::MadeTexts::ReaderShapes() )
        ExpectSameBook( shape.TextOfLength( s_kLength ), shape.m_name.toStdString() );
}

} // namespace PimManager::Contacts
