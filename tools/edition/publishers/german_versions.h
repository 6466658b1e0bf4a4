#pragma once

#include <string>
#include <vector>

#include "edition.h"

namespace tivex_edition {

// The rows of a new edition from a publisher's list and, when there is one, from
// the list that is in force from a later date: what that changes gets a second
// version. The lists hold no IBAN rules; they are kept from the replaced edition.
std::vector<german_row> german_versions(std::vector<german_row> replaced,
                                        const std::vector<german_row>& listed,
                                        const std::vector<german_row>& listed_later,
                                        const std::string& later_date);

}  // namespace tivex_edition
