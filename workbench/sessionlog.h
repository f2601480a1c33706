#pragma once

#include "host/json/fwd.h"

/// Where a recorder puts the steps of a session.
class SessionLog
{
public:
    virtual ~SessionLog() = default;

    virtual void append(const kql::Json::Value& step) = 0;
    /// Puts @p step in the place of the last one.
    virtual void replaceLast(const kql::Json::Value& step) = 0;
};
