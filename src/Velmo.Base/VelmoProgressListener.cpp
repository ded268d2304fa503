#include "VelmoProgressListener.h"

VelmoProgressListener::~VelmoProgressListener() = default;

void VelmoProgressListener::progressEvent(QString)
{ }

void VelmoProgressListener::progressEvent(int)
{ }
