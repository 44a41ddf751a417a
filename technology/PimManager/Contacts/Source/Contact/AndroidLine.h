/// \file
/// The components of an X-ANDROID-CUSTOM.

#pragma once

#include "Contact/AndroidCustom.h"
#include "Contact/FieldReader.h"
#include "Text/KeptTexts.h"

namespace PimManager::Contacts
{

/// Reads the line of a reader.
class AndroidLine
{
public:
    /// \param a_reader must not leave the line as long as its texts are needed.
    explicit AndroidLine( FieldReader& a_reader )
    {
        AndroidCustomParts parts;
        PartReader reader = a_reader.Parts( Delimiters::Semicolons );
        m_texts.Begin( a_reader.Value().Escaped().m_text );
        for ( std::string_view& part : parts )
        {
            if ( reader.Next() )
                part = m_texts.Keep( reader.Text() );
        }
        m_custom = AndroidCustomOf( parts );
    }

    const AndroidCustom& Custom() const { return m_custom; }
    /// \return true if the line is this item and has a text.
    bool Is( AndroidCustom::Item a_item ) const { return m_custom.m_item == a_item && !m_custom.m_text.empty(); }

private:
    KeptTexts m_texts;
    AndroidCustom m_custom;
};

} // namespace PimManager::Contacts
