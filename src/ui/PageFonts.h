#pragma once

#include <QFont>

#include "pages/FontMetrics.h"

namespace norvane::ui {

/// The toolkit's font for a page's face, unhinted and without kerning, as the layout has measured it. Where Arial and
/// Courier New are not installed, the faces made to their metrics take their place.
QFont PageFont(pages::Face face, double points);

/// Design figures of the machine's fonts.
class QtFontMetrics : public pages::FontMetrics {
 public:
  double Ascent(pages::Face face) const override;
  double Descent(pages::Face face) const override;
  double Advance(pages::Face face, std::string_view text) const override;
};

}  // namespace norvane::ui
