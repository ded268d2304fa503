#pragma once

#include "VelmoBaseExport.h"

#include <QString>

/// Something that a long operation reports its progress to. Calls may come from any thread; the listener says what it
/// does with those from other threads than its own.
class VELMO_BASE_EXPORT VelmoProgressListener
{
public:
    virtual ~VelmoProgressListener();

    /// What is being done now, for the user to read. Does nothing by default.
    virtual void progressEvent(QString text);
    /// How much of it is done, in percent. Does nothing by default.
    virtual void progressEvent(int percent);
};
