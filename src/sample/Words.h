#pragma once

#include <cstdint>
#include <span>

namespace norvane::sample {

// What the sample business is made of. No text holds an apostrophe: the program could not save such a row again.

struct Town {
  const char* city;
  const char* state;
  const char* zipCode;
  const char* areaCode;
};

struct Article {
  int category;  ///< `CatNum`, from 1
  const char* name;
  int price;  ///< in dimes, so that a discount of 10 or 20 % leaves whole cents
  int par;    ///< 0: work, which has no stock
  const char* warranty;
};

/// A way for goods to leave the shop.
struct Shipping {
  const char* service;
  const char* option;
  std::int64_t charge;  ///< in ten-thousandths
};

struct Supplier {
  const char* company;
  const char* expenseType;
  const char* note;  ///< what is bought there
};

std::span<const char* const> FirstNames();
std::span<const char* const> LastNames();
std::span<const char* const> Streets();
std::span<const char* const> CompanyWords();  ///< first word of a client's company
std::span<const char* const> CompanyKinds();  ///< and what follows it
std::span<const char* const> ClientNotes();
std::span<const char* const> CardNumbers();  ///< the payment industry's test numbers
std::span<const char* const> SalesReps();
std::span<const char* const> Categories();
std::span<const Shipping> Shippings();  ///< the first is over the counter
std::span<const Town> Towns();          ///< the first is the business's own
std::span<const Article> Articles();
std::span<const Supplier> Suppliers();

}  // namespace norvane::sample
