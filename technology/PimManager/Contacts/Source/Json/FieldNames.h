/// \file
/// The components of names and addresses in JSON.

#pragma once

#include <PimManager/Contacts/PimContactAddress.h>
#include <PimManager/Contacts/PimContactName.h>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// The members for the components of N, in their order.
constexpr std::array<std::string_view, s_kPimContactNameParts> s_kNameComponents = {
    R"("family":[)", R"("given":[)",         R"("additional":[)", R"("prefix":[)",
    R"("suffix":[)", R"("secondSurname":[)", R"("generation":[)",
};

/// The members for the components of ADR, in their order.
constexpr std::array<std::string_view, s_kPimContactAddressParts> s_kAddressComponents = {
    R"("postOfficeBox":[)", R"("extended":[)",   R"("street":[)",    R"("locality":[)",  R"("region":[)",
    R"("postalCode":[)",    R"("country":[)",    R"("room":[)",      R"("apartment":[)", R"("floor":[)",
    R"("streetNumber":[)",  R"("streetName":[)", R"("building":[)",  R"("block":[)",     R"("subdistrict":[)",
    R"("district":[)",      R"("landmark":[)",   R"("direction":[)",
};

} // namespace PimManager::Contacts
