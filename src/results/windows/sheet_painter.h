#pragma once

#include <QPainter>

#include "results/sheet_picture.h"

namespace tonarix {

/// Paints the sheet into the rectangle, as large as fits, at its top and in its middle. The same
/// for screen, printer and PDF. Texts are drawn as text, so that a PDF can be searched; one that is
/// too long becomes smaller, breaks into two lines and is cut in the end.
void paint_sheet(QPainter& painter, const SheetPicture& picture, const QRectF& into);

}  // namespace tonarix
