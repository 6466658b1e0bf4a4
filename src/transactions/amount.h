#pragma once

namespace tivex {

// Reads an amount in euro, above zero, and rounds it half up to whole cents (it
// may become 0). Returns null, or the reason why the text is no amount; then
// `amount` is as it was.
const char* amount_rule(const char* text, double& amount);

}  // namespace tivex
