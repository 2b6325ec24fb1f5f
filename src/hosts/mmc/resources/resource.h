#pragma once

// Numbers of what the snap-in's library holds beside its code. The resource compiler reads this
// file too, so that they are macros.

// The tool's icon, in every program; the first one of a program is what shells show it by.
#define ORVAN_TOOL_ICON 1

// Bitmaps of the root, 16 and 32 pixels wide: what their upper left pixel has is transparent.
#define ORVAN_ROOT_SMALL 101
#define ORVAN_ROOT_LARGE 102

// Icons of the scope tree's images, numbered on in the order of `scopeImageNames`.
#define ORVAN_SCOPE_IMAGES 201
