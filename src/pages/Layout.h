#pragma once

#include "pages/Document.h"
#include "pages/FontMetrics.h"
#include "pages/Pages.h"

namespace norvane::pages {

/// Places a document on pages. The same document and metrics always give the same pages; a document that was started
/// has at least one, and no text of it is ever lost.
Pages LayOut(const Document& document, const FontMetrics& metrics);

}  // namespace norvane::pages
