#include "statements/camt/elements.h"

#include <array>
#include <string_view>

#include "statements/camt/values.h"

namespace tivex {

namespace {

consteval element_row row(content within, const char* name, content inside, keep kept,
                          event happens, std::size_t offset, std::size_t content_offset) {
  const std::size_t length = std::string_view(name).size();
  return {name,
          name_head(name, length),
          static_cast<std::uint16_t>(offset),
          static_cast<std::uint16_t>(content_offset),
          within,
          inside,
          kept,
          happens,
          static_cast<std::uint8_t>(length)};
}

// An element with others inside.
consteval element_row holds(content within, const char* name, content inside,
                            std::size_t content_offset = 0, event happens = event::none) {
  return row(within, name, inside, keep::nothing, happens, 0, content_offset);
}

consteval element_row says(content within, const char* name, std::size_t offset,
                           content inside = content::none) {
  return row(within, name, inside, keep::text, event::none, offset, 0);
}

consteval element_row says_money(content within, const char* name, std::size_t offset) {
  return row(within, name, content::none, keep::money, event::none, offset, 0);
}

consteval element_row says_again(content within, const char* name, std::size_t offset) {
  return row(within, name, content::none, keep::list, event::none, offset, 0);
}

#define OF(value, member) offsetof(value##_value, member)

constexpr element_row rows[] = {
    holds(content::file, "Document", content::document),
    holds(content::document, "BkToCstmrStmt", content::statement_message, 0, event::message),
    holds(content::document, "BkToCstmrAcctRpt", content::report_message, 0, event::message),
    holds(content::document, "BkToCstmrDbtCdtNtfctn", content::notification_message, 0,
          event::message),
    holds(content::statement_message, "GrpHdr", content::header),
    holds(content::report_message, "GrpHdr", content::header),
    holds(content::notification_message, "GrpHdr", content::header),
    holds(content::statement_message, "Stmt", content::statement, OF(document, statement),
          event::statement),
    holds(content::report_message, "Rpt", content::statement, OF(document, statement),
          event::statement),
    holds(content::notification_message, "Ntfctn", content::statement, OF(document, statement),
          event::statement),
    holds(content::header, "MsgPgntn", content::page, OF(document, page)),
    says(content::page, "PgNb", OF(page, number)),

    says(content::statement, "Id", OF(statement, reference)),
    holds(content::statement, "StmtPgntn", content::page, OF(statement, page)),
    holds(content::statement, "RptPgntn", content::page, OF(statement, page)),
    holds(content::statement, "NtfctnPgntn", content::page, OF(statement, page)),
    says(content::statement, "ElctrncSeqNb", OF(statement, electronic_number)),
    says(content::statement, "LglSeqNb", OF(statement, legal_number)),
    holds(content::statement, "Acct", content::account, OF(statement, account)),
    holds(content::statement, "Bal", content::balance,
          OF(document, balance) - OF(document, statement), event::balance),
    holds(content::statement, "Ntry", content::entry, OF(document, entry) - OF(document, statement),
          event::entry),

    holds(content::account, "Id", content::account_id),
    says(content::account_id, "IBAN", OF(account, iban)),
    holds(content::account_id, "Othr", content::other_account_id),
    says(content::other_account_id, "Id", OF(account, other)),

    holds(content::balance, "Tp", content::balance_type),
    holds(content::balance_type, "CdOrPrtry", content::balance_code),
    says(content::balance_code, "Cd", OF(balance, code)),
    says_money(content::balance, "Amt", OF(balance, amount)),
    says(content::balance, "CdtDbtInd", OF(balance, indicator)),
    holds(content::balance, "Dt", content::date, OF(balance, date)),
    says(content::date, "Dt", OF(date, date)),
    says(content::date, "DtTm", OF(date, date_time)),

    says(content::entry, "NtryRef", OF(entry, reference)),
    says_money(content::entry, "Amt", OF(entry, amount)),
    says(content::entry, "CdtDbtInd", OF(entry, indicator)),
    says(content::entry, "RvslInd", OF(entry, reversal)),
    says(content::entry, "Sts", OF(entry, status), content::status),
    says(content::status, "Cd", OF(entry, status_code)),
    holds(content::entry, "BookgDt", content::date, OF(entry, booking_date)),
    holds(content::entry, "ValDt", content::date, OF(entry, value_date)),
    says(content::entry, "AcctSvcrRef", OF(entry, bank_ref)),
    holds(content::entry, "BkTxCd", content::code, OF(entry, code)),
    holds(content::entry, "Chrgs", content::charges, OF(entry, charges)),
    holds(content::entry, "NtryDtls", content::entry_details),
    says(content::entry, "AddtlNtryInf", OF(entry, information)),
    holds(content::entry_details, "Btch", content::batch),
    says(content::batch, "PmtInfId", OF(entry, batch)),
    holds(content::entry_details, "TxDtls", content::transaction,
          OF(document, transaction) - OF(document, entry), event::transaction),

    holds(content::code, "Prtry", content::proprietary_code),
    says(content::proprietary_code, "Cd", OF(code, proprietary)),
    holds(content::code, "Domn", content::domain_code),
    says(content::domain_code, "Cd", OF(code, domain)),
    holds(content::domain_code, "Fmly", content::family_code),
    says(content::family_code, "Cd", OF(code, family)),
    says(content::family_code, "SubFmlyCd", OF(code, sub_family)),

    holds(content::charges, "Rcrd", content::charges_record),
    says_money(content::charges_record, "Amt", OF(charges, of_record)),
    says_money(content::charges, "Amt", OF(charges, amount)),
    says_money(content::charges, "TtlChrgsAndTaxAmt", OF(charges, total)),

    holds(content::transaction, "Refs", content::references),
    says(content::references, "AcctSvcrRef", OF(transaction, bank_ref)),
    says(content::references, "EndToEndId", OF(transaction, end_to_end)),
    says(content::references, "MndtId", OF(transaction, mandate)),
    says(content::references, "PmtInfId", OF(transaction, payment)),
    says_money(content::transaction, "Amt", OF(transaction, amount)),
    says(content::transaction, "CdtDbtInd", OF(transaction, indicator)),
    holds(content::transaction, "AmtDtls", content::amount_details),
    holds(content::amount_details, "InstdAmt", content::instructed_amount),
    holds(content::amount_details, "TxAmt", content::stated_amount),
    says_money(content::instructed_amount, "Amt", OF(transaction, instructed)),
    says_money(content::stated_amount, "Amt", OF(transaction, stated_amount)),
    holds(content::transaction, "BkTxCd", content::code, OF(transaction, code)),
    holds(content::transaction, "Chrgs", content::charges, OF(transaction, charges)),
    holds(content::transaction, "RltdPties", content::parties),
    holds(content::transaction, "RltdAgts", content::agents),
    holds(content::transaction, "Purp", content::purpose),
    says(content::purpose, "Cd", OF(transaction, purpose)),
    holds(content::transaction, "RmtInf", content::remittance),
    holds(content::transaction, "RtrInf", content::return_information, 0, event::returned),
    says(content::transaction, "AddtlTxInf", OF(transaction, information)),

    holds(content::parties, "Dbtr", content::party, OF(transaction, debtor.party)),
    holds(content::parties, "DbtrAcct", content::account, OF(transaction, debtor.account)),
    holds(content::parties, "UltmtDbtr", content::ultimate_party, OF(transaction, ultimate_debtor)),
    holds(content::parties, "Cdtr", content::party, OF(transaction, creditor.party)),
    holds(content::parties, "CdtrAcct", content::account, OF(transaction, creditor.account)),
    holds(content::parties, "UltmtCdtr", content::ultimate_party,
          OF(transaction, ultimate_creditor)),
    holds(content::agents, "DbtrAgt", content::agent, OF(transaction, debtor.agent)),
    holds(content::agents, "CdtrAgt", content::agent, OF(transaction, creditor.agent)),

    says(content::party, "Nm", OF(party, name)),
    holds(content::party, "Id", content::party_id),
    holds(content::party, "Pty", content::inner_party),
    holds(content::party, "Agt", content::agent, OF(party, agent)),
    says(content::inner_party, "Nm", OF(party, inner_name)),
    holds(content::inner_party, "Id", content::party_id),
    holds(content::party_id, "PrvtId", content::person_id),
    holds(content::party_id, "OrgId", content::organisation_id),
    holds(content::person_id, "Othr", content::person_other_id),
    holds(content::organisation_id, "Othr", content::organisation_other_id),
    says(content::person_other_id, "Id", OF(party, person)),
    says(content::organisation_other_id, "Id", OF(party, organisation)),
    says(content::ultimate_party, "Nm", OF(ultimate, name)),
    holds(content::ultimate_party, "Pty", content::inner_ultimate_party),
    says(content::inner_ultimate_party, "Nm", OF(ultimate, inner_name)),

    holds(content::agent, "FinInstnId", content::institution),
    says(content::institution, "Nm", OF(institution, name)),
    says(content::institution, "BICFI", OF(institution, bicfi)),
    says(content::institution, "BIC", OF(institution, bic)),
    holds(content::institution, "ClrSysMmbId", content::member_id),
    says(content::member_id, "MmbId", OF(institution, member)),

    says_again(content::remittance, "Ustrd", OF(transaction, remittance)),
    holds(content::remittance, "Strd", content::structured_remittance),
    holds(content::structured_remittance, "CdtrRefInf", content::creditor_reference),
    says_again(content::creditor_reference, "Ref", OF(transaction, references)),
    says_again(content::structured_remittance, "AddtlRmtInf", OF(transaction, further_remittance)),

    holds(content::return_information, "Rsn", content::return_reason),
    says(content::return_reason, "Cd", OF(transaction, return_code)),
    says(content::return_reason, "Prtry", OF(transaction, return_text)),
    says_again(content::return_information, "AddtlInf", OF(transaction, return_information)),
};

#undef OF

// Rows by content and name, with open addressing.
constexpr std::size_t slot_bits = 10;
constexpr std::size_t slots = std::size_t{1} << slot_bits;

constexpr std::size_t slot_of(content within, std::uint64_t head, std::size_t length) {
  const std::uint64_t key = head ^ (std::uint64_t{static_cast<std::uint8_t>(within)} << 51) ^
                            (std::uint64_t{length} << 58);
  return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15U) >> (64 - slot_bits));
}

// The number of a row from 1 on, 0 where none is.
constexpr std::array<std::uint8_t, slots> places = [] {
  static_assert(std::size(rows) < 256);
  std::array<std::uint8_t, slots> made{};
  for (std::size_t place = 0; place < std::size(rows); ++place) {
    const element_row& each = rows[place];
    std::size_t slot = slot_of(each.within, each.head, each.length);
    while (made[slot] != 0) slot = (slot + 1) % slots;
    made[slot] = static_cast<std::uint8_t>(place + 1);
  }
  return made;
}();

}  // namespace

const element_row* find_element(content within, const element_name& name) {
  for (std::size_t slot = slot_of(within, name.head, name.length); places[slot] != 0;
       slot = (slot + 1) % slots) {
    const element_row& found = rows[places[slot] - 1];
    if (found.head != name.head || found.within != within || found.length != name.length) continue;
    if (name.length <= head_length) return &found;
    const std::size_t rest = name.length - head_length;
    if (std::memcmp(found.name + head_length, name.text + head_length, rest) == 0) return &found;
  }
  return nullptr;
}

}  // namespace tivex
