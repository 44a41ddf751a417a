/// \file
/// The parameters of a line for a typed field.

#pragma once

#include "Text/KeptTexts.h"
#include "Values/ValueDecoder.h"

#include <QByteArray>

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace PimManager::Contacts
{

/// The parameters that a typed field uses.
enum class FieldParameter : quint8
{
    Type,
    Preference,
    Value,
    Language,
    AltId,
    MediaType,
    SortAs,
    Label,
    Geo,
    TimeZone,
    CountryCode,
    Calendar,
    Level,
    OmittedYear, ///< X-APPLE-OMIT-YEAR
    Crop,        ///< X-ABCROP-RECTANGLE
    Custom,      ///< X-CUSTOM
    ServiceType, ///< SERVICE-TYPE and X-SERVICE-TYPE
    UserName,    ///< USERNAME, X-USER and X-USERID
    Other,
};

FieldParameter FieldParameterOf( std::string_view a_name );

/// Reads the parameters of lines, one line after the other. Each parameter is read once. Keeps its memory.
class FieldParameters
{
public:
    /// \return the kinds of a TYPE word, as the value of flags.
    using KindsOf = quint32 ( * )( std::string_view a_word );

    /// \param a_line must exist as long as its parameters are needed.
    void Read( const IndexedLine& a_line, KindsOf a_kindsOf );

    /// Forgets what was read.
    void Clear()
    {
        m_values.clear();
        m_customType = std::string_view();
        m_meaning = Meaning();
    }
    /// \return true if it keeps more memory than the parameters of a usual line need.
    bool IsLarge() const { return m_isLarge; }

    /// \return the first value of a parameter. Empty if there is none.
    std::string_view First( FieldParameter a_parameter ) const;
    /// All values, in their order. TYPE and PREF are left out.
    const std::vector<std::pair<FieldParameter, std::string_view>>& Values() const { return m_values; }

    /// \return the kinds of all words of TYPE.
    quint32 Kinds() const { return m_meaning.m_kinds; }
    /// \return the first word of TYPE that is neither a kind nor a standard word; empty without one.
    std::string_view CustomType() const { return m_customType; }

    /// \return from 1 (most preferred) to 100: the value of PREF, or 1 if a type is PREF; 0 for none.
    int Preference() const
    {
        return m_meaning.m_preference == 0 && m_meaning.m_isPreferred ? 1 : m_meaning.m_preference;
    }

private:
    // The meanings of the words of TYPE and of PREF.
    struct Meaning
    {
        quint32 m_kinds = 0;
        int m_preference = 0;
        bool m_hasPreference = false;
        bool m_isPreferred = false;
    };

    void ReadPlain( std::string_view a_parameters, KindsOf a_kindsOf );
    void ReadAny( std::string_view a_parameters, PimContactVersion a_version, KindsOf a_kindsOf );
    void Take( std::string_view a_name, std::string_view a_value, KindsOf a_kindsOf );
    void TakeType( std::string_view a_word, KindsOf a_kindsOf );
    void TakePreference( std::string_view a_value );

    // For parameters that are not plain, which are rare.
    std::optional<ValueDecoder> m_decoder;
    KeptTexts m_texts;
    std::vector<std::pair<FieldParameter, std::string_view>> m_values;
    std::string_view m_customType;
    Meaning m_meaning;
    // There were long parameters, so the memory may be large.
    bool m_isLarge = false;
};

} // namespace PimManager::Contacts
