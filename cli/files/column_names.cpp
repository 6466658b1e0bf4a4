#include "files/column_names.h"

#include <algorithm>
#include <map>
#include <string>

#include "files/folded_name.h"

namespace tivex_program {
namespace {

constexpr column_alias aliases[] = {
    {"Kontonummer (IBAN)", "iban"},
    {"IBAN Empfänger", "iban"},
    {"IBAN des Empfängers", "iban"},
    {"Empfänger IBAN", "iban"},
    {"IBAN Zahlungspflichtiger", "iban"},
    {"Swift", "bic"},
    {"BIC/SWIFT", "bic"},
    {"SWIFT/BIC", "bic"},
    {"SWIFT Code", "bic"},
    {"BIC Code", "bic"},
    {"Empfänger", "name"},
    {"Empfängername", "name"},
    {"Name des Empfängers", "name"},
    {"Zahlungsempfänger", "name"},
    {"Zahlungspflichtiger", "name"},
    {"Kontoinhaber", "name"},
    {"Kontoinhaberin", "name"},
    {"Begünstigter", "name"},
    {"Begünstigte", "name"},
    {"Empfängerin", "name"},
    {"Mitglied", "name"},
    {"Payee", "name"},
    {"Payer", "name"},
    {"Recipient", "name"},
    {"Beneficiary", "name"},
    {"Debtor", "name"},
    {"Account holder", "name"},
    {"Betrag", "amount"},
    {"Betrag EUR", "amount"},
    {"Betrag in EUR", "amount"},
    {"Betrag in Euro", "amount"},
    {"Summe", "amount"},
    {"Beitrag", "amount"},
    {"Amount EUR", "amount"},
    {"Amount in EUR", "amount"},
    {"Verwendungszweck", "ref"},
    {"Zweck", "ref"},
    {"Zahlungsgrund", "ref"},
    {"Zahlungsreferenz", "ref"},
    {"Purpose", "ref"},
    {"Purpose of payment", "ref"},
    {"Reference", "ref"},
    {"Payment reference", "ref"},
    {"Remittance information", "ref"},
    {"Datum", "date"},
    {"Fälligkeit", "date"},
    {"Fälligkeitsdatum", "date"},
    {"Fällig am", "date"},
    {"Ausführung", "date"},
    {"Ausführungsdatum", "date"},
    {"Ausführungstermin", "date"},
    {"Einzugsdatum", "date"},
    {"Due date", "date"},
    {"Execution date", "date"},
    {"Collection date", "date"},
    {"Ende-zu-Ende-Referenz", "id"},
    {"End-to-end-Referenz", "id"},
    {"End-to-end ID", "id"},
    {"EndToEndId", "id"},
    {"Purpose code", "purp"},
    {"Zweckcode", "purp"},
    {"Gläubigerreferenz", "cref"},
    {"Creditor reference", "cref"},
    {"Sequenz", "seq"},
    {"Sequenztyp", "seq"},
    {"Sequence", "seq"},
    {"Sequence type", "seq"},
    {"Mandatsreferenz", "mref"},
    {"Mandat", "mref"},
    {"Mandatsnummer", "mref"},
    {"Mandate reference", "mref"},
    {"Mandate", "mref"},
    {"Mandate ID", "mref"},
    {"Mandatsdatum", "mdate"},
    {"Datum des Mandats", "mdate"},
    {"Unterschrieben am", "mdate"},
    {"Unterschriftsdatum", "mdate"},
    {"Mandat vom", "mdate"},
    {"Mandate date", "mdate"},
    {"Signed on", "mdate"},
    {"Signature date", "mdate"},
    {"Alte Mandatsreferenz", "old_mref"},
    {"Frühere Mandatsreferenz", "old_mref"},
    {"Old mandate reference", "old_mref"},
    {"Alte IBAN", "old_iban"},
    {"Frühere IBAN", "old_iban"},
    {"Old IBAN", "old_iban"},
    {"Straße", "addrStreet"},
    {"Str.", "addrStreet"},
    {"Street", "addrStreet"},
    {"Hausnummer", "addrNum"},
    {"Hausnr.", "addrNum"},
    {"Building number", "addrNum"},
    {"PLZ", "addrCode"},
    {"Postleitzahl", "addrCode"},
    {"Postcode", "addrCode"},
    {"Post code", "addrCode"},
    {"ZIP", "addrCode"},
    {"ZIP code", "addrCode"},
    {"Ort", "addrTown"},
    {"Stadt", "addrTown"},
    {"Wohnort", "addrTown"},
    {"Town", "addrTown"},
    {"City", "addrTown"},
    {"Land", "addrCC"},
    {"Ländercode", "addrCC"},
    {"Country", "addrCC"},
    {"Country code", "addrCC"},
    {"Adresszeile 1", "addrLine1"},
    {"Address line 1", "addrLine1"},
    {"Adresszeile 2", "addrLine2"},
    {"Address line 2", "addrLine2"},
    {"Postfach", "addrPoBox"},
    {"PO Box", "addrPoBox"},
    {"Bundesland", "addrCtrySub"},
    {"BLZ", "bank_code"},
    {"Bankleitzahl", "bank_code"},
    {"Bank code", "bank_code"},
    {"Konto", "account"},
    {"Kontonummer", "account"},
    {"Konto-Nr.", "account"},
    {"Kto", "account"},
    {"Account number", "account"},
};

// The keys of the aliases by their folded names.
const std::map<std::string, std::string_view>& folded_aliases() {
  static const std::map<std::string, std::string_view> all = [] {
    std::map<std::string, std::string_view> folded;
    for (const column_alias& alias : aliases) folded.emplace(folded_name(alias.name), alias.key);
    return folded;
  }();
  return all;
}

bool is_among(std::string_view key, std::span<const std::string_view> keys) {
  return std::ranges::find(keys, key) != keys.end();
}

}  // namespace

std::span<const column_alias> column_aliases() { return aliases; }

std::string_view key_of_column(std::string_view name, std::span<const std::string_view> keys) {
  const std::string folded = folded_name(name);
  if (folded.empty()) return {};
  for (const std::string_view key : keys) {
    if (folded_name(key) == folded) return key;
  }
  const auto found = folded_aliases().find(folded);
  const bool known = found != folded_aliases().end() && is_among(found->second, keys);
  return known ? found->second : std::string_view();
}

}  // namespace tivex_program
