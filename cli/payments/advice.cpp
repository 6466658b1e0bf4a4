#include "payments/advice.h"

namespace tivex_program {
namespace {

constexpr std::string_view ask_for_iban = "compare it with the paper it comes from, or ask";
constexpr std::string_view shorten = "shorten it; an umlaut counts as two";
constexpr std::string_view replace_character = "replace the character";
constexpr std::string_view fill_in = "fill it in";

struct advice {
  std::string_view start;  // of the reasons
  std::string_view text;
};
// The first row that fits.
constexpr advice advices[] = {
    {"Invalid or unknown IBAN country code", "outside SEPA there are no SEPA payments"},
    {"Wrong IBAN length", ask_for_iban},
    {"Invalid IBAN", ask_for_iban},
    {"Invalid character in IBAN", ask_for_iban},
    {"Invalid account number in IBAN", ask_for_iban},
    {"Invalid bank ID (BLZ) in IBAN",
     "mistyped, or newer than the directory: --unknown-banks accept"},
    {"IBAN missing", fill_in},
    {"BIC missing", "fill it in, or take a newer --rulebook"},
    {"Amount missing", fill_in},
    {"Sequence type missing", "fill it in, or give --seq"},
    {"Address required", "fill in addrLine1"},
    {"Structured address required", "fill in addrTown and addrCC"},
    {"Creditor reference and remittance", "leave one of them out"},
    {"Invalid BIC", "correct it, or leave it out where the rulebook allows"},
    {"Invalid name", shorten},
    {"Invalid unstructured remittance", shorten},
    {"Invalid address line", shorten},
    {"Invalid end-to-end ID", shorten},
    {"Invalid instruction ID", shorten},
    {"Invalid ultimate", shorten},
    {"Invalid mandate reference", "it is that of the mandate"},
    {"Invalid old mandate reference", "it is that of the mandate"},
    {"Invalid character", replace_character},
    {"has character", replace_character},
    {"has byte", replace_character},
    {"Invalid country code", "write two capital letters, DE for instance"},
    {"selected SEPA rulebook requires structured", "split the address into parts"},
    {"selected SEPA rulebook does not support structured", "write the address as lines"},
    {"Invalid format for", "shorten it, or leave it out"},
    {"Empty amount", "leave the line out"},
    {"Negative or zero amount", "leave the line out; a refund is a payment the other way"},
    {"Invalid/unknown sequence type", "write FRST, RCUR, OOFF or FNAL"},
    {"Invalid value", "write 1 or nothing"},
    {"Invalid creditor reference", "compare it with the invoice"},
    {"Invalid purpose", "write a code such as SALA"},
    {"purpose not of", "write a code such as SALA"},
    {"missing", fill_in},
    {"above 999999999.99", "split the payment"},
    {"is not in the list of purposes", "take an older code, or none"},
    {"has '/'", "write a hyphen, for instance"},
    {"has blanks only", "fill it in, or leave it out"},
    {"byte 0x", "give the right --encoding"},
    {"control character", "remove it; often a line end within the cell"},
    {"code point", "remove it"},
    {"character '", "remove it"},
    {"malformed quoting", "write a quote within a quoted cell twice"},
    {"quoted cell that is not closed", "close the quotes"},
};

}  // namespace

std::string_view advice_for(std::string_view reason) {
  for (const advice& each : advices) {
    if (reason.starts_with(each.start)) return each.text;
  }
  return {};
}

}  // namespace tivex_program
