#pragma once

#include "scenes/canvas.h"

/// The motifs of the card's photos. Each fills a whole canvas; `variant` picks colours, weather
/// and composition.
namespace Scenes {

void mountains(Canvas &canvas, int variant); ///< 0-7
void hills(Canvas &canvas, int variant);  ///< 0-5: meadow, autumn, lavender, desert, snow, vineyard
void sea(Canvas &canvas, int variant);    ///< 0-5
void beach(Canvas &canvas, int variant);  ///< 0-2
void forest(Canvas &canvas, int variant); ///< 0-4
void nightSky(Canvas &canvas, int variant); ///< 0-5
void skyline(Canvas &canvas, int variant);  ///< 0-3
void street(Canvas &canvas, int variant);   ///< 0-2
void flower(Canvas &canvas, int variant);   ///< 0-4
void tulips(Canvas &canvas, int variant);   ///< 0-1
void blossom(Canvas &canvas, int variant);  ///< 0-1
void coffee(Canvas &canvas, int variant);
void pizza(Canvas &canvas, int variant);
void berries(Canvas &canvas, int variant);
void citrus(Canvas &canvas, int variant);
void cake(Canvas &canvas, int variant);
void ramen(Canvas &canvas, int variant);
void cat(Canvas &canvas, int variant);         ///< 0-1
void dog(Canvas &canvas, int variant);         ///< 0-1
void bird(Canvas &canvas, int variant);        ///< 0-1
void portrait(Canvas &canvas, int variant);    ///< 0-4
void group(Canvas &canvas, int variant);       ///< 0-1
void silhouettes(Canvas &canvas, int variant); ///< 0-2: hiker, couple, child with balloons
void balloons(Canvas &canvas, int variant);    ///< 0-1
void document(Canvas &canvas, int variant);    ///< a letter photographed on a desk

} // namespace Scenes
