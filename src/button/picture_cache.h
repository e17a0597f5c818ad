// What tests see of the cache of pictures; its functions are exports.
#pragma once

#include <widgets/widgets.h>

int PicRefs(const Pic* pic); // uses of a picture that LoadPic has given; 0 for another
