#pragma once

#include "VelmoBaseExport.h"

/// Something that a long operation tells how much of it is done. Calls may come from any thread.
class VELMO_BASE_EXPORT VelmoPercentListener
{
public:
    virtual ~VelmoPercentListener();

    /// @p percent is 0 to 100.
    virtual void percentEvent(int percent) = 0;
};
