// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gallery.h"

/// Each adds its pictures. @return false when one could not be written.
bool addLines(Gallery& gallery);
bool addDashes(Gallery& gallery);
bool addShapes(Gallery& gallery);
bool addHatches(Gallery& gallery);
bool addGradients(Gallery& gallery);
bool addCompositing(Gallery& gallery);
bool addTexts(Gallery& gallery);
bool addLayouts(Gallery& gallery);
bool addScripts(Gallery& gallery);
bool addLabels(Gallery& gallery);
bool addImageLines(Gallery& gallery);
bool addImageShapes(Gallery& gallery);
bool addSelections(Gallery& gallery);
