#pragma once

#include <cstdint>
#include <string>

#include "core/Object.h"
#include "pages/DocumentBuilder.h"

namespace norvane {

class Client;
class cSetup;

// The blocks at the head and foot of invoices, receipts and statements.

inline constexpr const char* kThanksFooter = "|We appreciate your business!|";

/// The company as pages show it. Web site, phone and fax have their prefix, or are empty.
struct CompanyHeading {
  std::string Name, Address1, City, State, ZipCode;
  std::string WebSite, Phone, Fax;
};

/// Reads the company's row. Raises 91 if there is no object.
CompanyHeading TakeCompanyHeading(const Object<cSetup>& setup);
/// Two centred boxes at the head of the page, the first line bold; then an empty line, and left alignment.
void WriteCompanyHeading(pages::DocumentBuilder& document, const CompanyHeading& company, const std::string& firstLine);

struct Address {
  const std::string &fname, &lname, &address1, &city, &state, &zipCode, &homePhone;
};

/// A bold title and the address in a box below it, `left` being their left edge.
void WriteAddress(pages::DocumentBuilder& document, const char* title, const char* left, const Address& address);
/// Fills the object's properties with a client's record.
void ReadClient(const Object<Client>& client, std::int32_t custNum);
/// "Bill To:" with the client's billing address.
void WriteBillTo(pages::DocumentBuilder& document, const Client& client);
/// The head of a statement or receipt: company, client and an empty line.
void WriteStatementHead(pages::DocumentBuilder& document, const CompanyHeading& company, const Client& client);

/// Where a client's bills are sent by mail: to the billing address if there is one.
std::string MailAddressOf(const Client& client);

}  // namespace norvane
