#include "VelmoPercentListener.h"

VelmoPercentListener::~VelmoPercentListener() = default;
