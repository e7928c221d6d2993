#pragma once

#include "pages/Document.h"
#include "pages/FontMetrics.h"
#include "pages/Pages.h"

namespace norvane::pages {

/// Places a document on pages. The same document and metrics always give the same pages; a document that was started
/// has at least one. All text is kept, except for the ends of lines too wide for a text box, a header or a footer.
Pages LayOut(const Document& document, const FontMetrics& metrics);

}  // namespace norvane::pages
