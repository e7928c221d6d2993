#include "sample/Words.h"

namespace norvane::sample {
namespace {

constexpr const char* kFirstNames[] = {
    "Adele",  "Alan",    "Amara",    "Andrew", "Anita",  "Arthur",  "Beatriz", "Benjamin", "Björn",  "Brian",
    "Carla",  "Carmen",  "Chloé",    "Daniel", "Deepa",  "Dennis",  "Diana",   "Edward",   "Elena",  "Emily",
    "Ethan",  "Fatima",  "Frank",    "George", "Grace",  "Hannah",  "Hélène",  "Henry",    "Ingrid", "Irene",
    "Isaac",  "Jacob",   "Janet",    "Jerome", "José",   "Judith",  "Jürgen",  "Karen",    "Keiko",  "Kevin",
    "Laura",  "Leonard", "Lucía",    "Marcus", "Maria",  "Martin",  "Michael", "Miriam",   "Nadia",  "Nathan",
    "Olivia", "Oscar",   "Patricia", "Paul",   "Priya",  "Rachel",  "Raymond", "Rosa",     "Samuel", "Sandra",
    "Sofia",  "Stephen", "Susan",    "Tamara", "Thomas", "Valerie", "Victor",  "Walter",   "Wendy",  "Zoë"};

constexpr const char* kLastNames[] = {
    "Abbott",  "Adams",     "Åkerström", "Alvarez",  "Anderson", "Bailey",   "Baker",    "Barnes",   "Becker",
    "Bennett", "Bergström", "Blake",     "Brooks",   "Burke",    "Campbell", "Carlson",  "Chandra",  "Clark",
    "Cohen",   "Collins",   "Cooper",    "Davis",    "Delgado",  "Dupré",    "Edwards",  "Ellis",    "Evans",
    "Fischer", "Fleming",   "Foster",    "García",   "Gibson",   "Grant",    "Hansen",   "Harper",   "Hayes",
    "Hoffman", "Howard",    "Hughes",    "Ibrahim",  "Jansen",   "Jenkins",  "Johnson",  "Kaplan",   "Keller",
    "Kim",     "Kowalski",  "Larsen",    "Lefèvre",  "Lopez",    "Marshall", "McCarthy", "Meyer",    "Mitchell",
    "Morgan",  "Müller",    "Murphy",    "Nakamura", "Nelson",   "Nguyen",   "Novák",    "Núñez",    "Olsen",
    "Owens",   "Palmer",    "Park",      "Patel",    "Pereira",  "Peterson", "Quinn",    "Ramirez",  "Reed",
    "Rossi",   "Russell",   "Sanders",   "Schmidt",  "Sharma",   "Silva",    "Stewart",  "Sullivan", "Takahashi",
    "Taylor",  "Turner",    "Vargas",    "Wagner",   "Walker",   "Weber",    "Whitman",  "Wilson",   "Young"};

constexpr const char* kStreets[] = {
    "Alder Street",    "Birch Lane",   "Bridge Street",   "Canal Street",  "Cedar Avenue",      "Chestnut Road",
    "Division Street", "Elm Street",   "Fairview Drive",  "Garden Court",  "Harbor Way",        "Hillside Avenue",
    "Juniper Lane",    "Lake Road",    "Maple Avenue",    "Market Street", "Mill Road",         "Orchard Lane",
    "Park Avenue",     "Pine Street",  "Prospect Street", "Quarry Road",   "River Road",        "Spruce Street",
    "Station Road",    "Union Avenue", "Valley View",     "Walnut Street", "Washington Street", "Willow Way"};

constexpr const char* kCompanyWords[] = {"Bayside",  "Cascade",  "Evergreen", "Foothill",  "Harborview", "Juniper",
                                         "Lakeside", "Meridian", "Narrows",   "Northgate", "Orchard",    "Pioneer",
                                         "Rainier",  "Redwood",  "Riverbend", "Sound",     "Summit",     "Westside"};

constexpr const char* kCompanyKinds[] = {"Bike Rentals",    "Cycling Club",   "Courier Service", "Fitness Center",
                                         "Outfitters",      "Property Group", "Racing Team",     "Resort",
                                         "School District", "Tours"};

constexpr const char* kClientNotes[] = {"Prefers calls after 5 pm.",     "Rides a 56 cm frame.",
                                        "Ask about the spring tune-up.", "Referred by a friend.",
                                        "Delivers to the side door.",    "Interested in a cargo bike."};

constexpr const char* kCardNumbers[] = {"4111111111111111", "5555555555554444", "4012888888881881", "378282246310005",
                                        "6011111111111117"};

constexpr const char* kSalesReps[] = {"Dana", "Luis", "Morgan", "Tess"};

constexpr const char* kCategories[] = {"Bicycles",    "Wheels and Tires",     "Drivetrain and Brakes",
                                       "Accessories", "Clothing and Helmets", "Workshop Services"};

constexpr Town kTowns[] = {
    {"Tacoma", "WA", "98405", "253"},   {"Tacoma", "WA", "98407", "253"},     {"Lakewood", "WA", "98499", "253"},
    {"Puyallup", "WA", "98371", "253"}, {"Gig Harbor", "WA", "98335", "253"}, {"Olympia", "WA", "98501", "360"},
    {"Seattle", "WA", "98104", "206"},  {"Auburn", "WA", "98002", "253"},     {"Bremerton", "WA", "98337", "360"},
    {"Portland", "OR", "97205", "503"}, {"Boise", "ID", "83702", "208"}};

constexpr Shipping kShippings[] = {{"Counter", "Pick up", 0},           {"Shop van", "Up to 50 lb", 120'000},
                                   {"Parcel", "Up to 5 lb", 85'000},    {"Parcel", "Up to 20 lb", 150'000},
                                   {"Freight", "Bicycle box", 650'000}, {"Overnight", "Up to 5 lb", 350'000}};

constexpr Article kArticles[] = {{1, "City bicycle, 3 speed", 5490, 4, "5 years"},
                                 {1, "City bicycle, 8 speed", 7290, 4, "5 years"},
                                 {1, "Commuter bicycle, step-through", 6890, 4, "5 years"},
                                 {1, "Road bicycle, aluminum", 11990, 3, "5 years"},
                                 {1, "Road bicycle, carbon", 24990, 2, "5 years"},
                                 {1, "Gravel bicycle", 15490, 3, "5 years"},
                                 {1, "Mountain bicycle, hardtail", 9890, 3, "5 years"},
                                 {1, "Mountain bicycle, full suspension", 21990, 2, "5 years"},
                                 {1, "Touring bicycle", 13490, 2, "5 years"},
                                 {1, "Folding bicycle", 8990, 3, "5 years"},
                                 {1, "Cargo bicycle, electric", 38990, 2, "2 years"},
                                 {1, "City bicycle, electric", 26990, 3, "2 years"},
                                 {1, "Kids bicycle, 16 inch", 2290, 5, "2 years"},
                                 {1, "Kids bicycle, 20 inch", 2790, 5, "2 years"},
                                 {1, "Balance bicycle", 1390, 5, "2 years"},
                                 {2, "Tire, 700 x 28, road", 420, 20, "90 days"},
                                 {2, "Tire, 700 x 35, all weather", 385, 24, "90 days"},
                                 {2, "Tire, 27.5 x 2.2, trail", 520, 14, "90 days"},
                                 {2, "Tire, 20 inch, kids", 195, 12, "90 days"},
                                 {2, "Inner tube, 700 x 25-32", 80, 60, "90 days"},
                                 {2, "Inner tube, 27.5 inch", 85, 40, "90 days"},
                                 {2, "Inner tube, 20 inch", 70, 30, "90 days"},
                                 {2, "Tubeless sealant, 8 oz", 145, 12, "30 days"},
                                 {2, "Rim tape, pair", 65, 15, "30 days"},
                                 {2, "Front wheel, 700c", 890, 5, "1 year"},
                                 {2, "Rear wheel, 700c", 1190, 5, "1 year"},
                                 {2, "Dynamo front wheel, 700c", 1890, 3, "2 years"},
                                 {2, "Spoke, stainless", 12, 200, "30 days"},
                                 {2, "Valve caps, set of 4", 35, 20, "30 days"},
                                 {3, "Chain, 8 speed", 190, 20, "90 days"},
                                 {3, "Chain, 11 speed", 345, 16, "90 days"},
                                 {3, "Cassette, 8 speed, 11-32", 320, 8, "1 year"},
                                 {3, "Cassette, 11 speed, 11-34", 690, 6, "1 year"},
                                 {3, "Chainring, 42 tooth", 410, 6, "1 year"},
                                 {3, "Bottom bracket, threaded", 360, 6, "1 year"},
                                 {3, "Pedals, platform, pair", 295, 10, "1 year"},
                                 {3, "Pedals, clipless, pair", 790, 6, "2 years"},
                                 {3, "Brake pads, rim, pair", 110, 40, "30 days"},
                                 {3, "Brake pads, disc, pair", 185, 40, "30 days"},
                                 {3, "Disc rotor, 160 mm", 270, 10, "1 year"},
                                 {3, "Brake cable, stainless", 60, 40, "30 days"},
                                 {3, "Shift cable, stainless", 60, 40, "30 days"},
                                 {3, "Cable housing, per foot", 15, 150, "30 days"},
                                 {3, "Rear derailleur, 8 speed", 490, 5, "1 year"},
                                 {3, "Shift lever, 8 speed", 340, 5, "1 year"},
                                 {4, "Front light, USB", 395, 12, "1 year"},
                                 {4, "Rear light, USB", 245, 16, "1 year"},
                                 {4, "Light set, dynamo", 1150, 4, "2 years"},
                                 {4, "U-lock", 545, 12, "Lifetime"},
                                 {4, "Chain lock", 690, 8, "Lifetime"},
                                 {4, "Floor pump", 440, 8, "2 years"},
                                 {4, "Mini pump", 265, 10, "1 year"},
                                 {4, "Multi-tool, 16 functions", 290, 12, "Lifetime"},
                                 {4, "Patch kit", 45, 40, "30 days"},
                                 {4, "Tire levers, pair", 40, 30, "30 days"},
                                 {4, "Chain lubricant, 4 oz", 95, 30, "30 days"},
                                 {4, "Degreaser, 12 oz", 110, 15, "30 days"},
                                 {4, "Bottle cage", 120, 20, "1 year"},
                                 {4, "Water bottle, 24 oz", 95, 30, "30 days"},
                                 {4, "Fenders, pair", 480, 8, "1 year"},
                                 {4, "Rear rack", 420, 8, "2 years"},
                                 {4, "Panniers, waterproof, pair", 1390, 5, "5 years"},
                                 {4, "Saddle bag", 245, 10, "1 year"},
                                 {4, "Child seat", 1490, 3, "2 years"},
                                 {4, "Saddle, gel", 455, 6, "1 year"},
                                 {4, "Grips, pair", 165, 12, "30 days"},
                                 {5, "Helmet, adult", 690, 12, "30 days"},
                                 {5, "Helmet, kids", 395, 10, "30 days"},
                                 {5, "Gloves, full finger", 290, 10, "30 days"},
                                 {5, "Rain jacket", 990, 6, "1 year"},
                                 {5, "Jersey, short sleeve", 640, 8, "30 days"},
                                 {5, "Padded shorts", 590, 8, "30 days"},
                                 {5, "Reflective vest", 185, 12, "30 days"},
                                 {5, "Wool socks", 140, 20, "30 days"},
                                 {6, "Tune-up, standard", 850, 0, "30 days"},
                                 {6, "Tune-up, complete overhaul", 2250, 0, "90 days"},
                                 {6, "Wheel truing", 300, 0, "30 days"},
                                 {6, "Flat repair, labor", 150, 0, "30 days"},
                                 {6, "Brake adjustment", 250, 0, "30 days"},
                                 {6, "Workshop labor, per half hour", 400, 0, "30 days"}};

constexpr Supplier kSuppliers[] = {{"Cascade Bicycle Distributors", "Inventory", "Bicycles"},
                                   {"Pacific Wheel Works", "Inventory", "Wheels and rims"},
                                   {"Northwest Tire Supply", "Inventory", "Tires and tubes"},
                                   {"Summit Components", "Inventory", "Drivetrain parts"},
                                   {"Bright Road Lighting", "Inventory", "Lights"},
                                   {"Helmet House", "Inventory", "Helmets"},
                                   {"Rainproof Apparel", "Inventory", "Clothing"},
                                   {"Locksmith Cycle Security", "Inventory", "Locks"},
                                   {"Harbor Point Properties", "Rent", "Shop rent"},
                                   {"Puget Power and Light", "Utilities", "Electricity"},
                                   {"City of Tacoma Water", "Utilities", "Water and sewer"},
                                   {"Soundwave Telephone", "Utilities", "Telephone and internet"},
                                   {"Evergreen Mutual Insurance", "Insurance", "Business policy"},
                                   {"Alder Weekly", "Advertising", "Weekend advertisement"},
                                   {"Wheelhouse Media", "Advertising", "Online campaign"},
                                   {"Olympic Office Supply", "Office Supplies", "Paper and toner"},
                                   {"Pioneer Printing", "Office Supplies", "Receipts and tags"},
                                   {"Department of Revenue", "Taxes", "Sales tax"},
                                   {"Coastline Travel", "Travel", "Trade show"},
                                   {"Narrows Fuel", "Travel", "Delivery van"},
                                   {"Tideflats Payroll Service", "Payroll", "Wages and withholding"}};

}  // namespace

std::span<const char* const> FirstNames() {
  return kFirstNames;
}
std::span<const char* const> LastNames() {
  return kLastNames;
}
std::span<const char* const> Streets() {
  return kStreets;
}
std::span<const char* const> CompanyWords() {
  return kCompanyWords;
}
std::span<const char* const> CompanyKinds() {
  return kCompanyKinds;
}
std::span<const char* const> ClientNotes() {
  return kClientNotes;
}
std::span<const char* const> CardNumbers() {
  return kCardNumbers;
}
std::span<const char* const> SalesReps() {
  return kSalesReps;
}
std::span<const char* const> Categories() {
  return kCategories;
}
std::span<const Shipping> Shippings() {
  return kShippings;
}
std::span<const Town> Towns() {
  return kTowns;
}
std::span<const Article> Articles() {
  return kArticles;
}
std::span<const Supplier> Suppliers() {
  return kSuppliers;
}

}  // namespace norvane::sample
