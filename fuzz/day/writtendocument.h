#pragma once

#include "host/json/value.h"

#include <string>

class RuleData;
class WorkbenchWindow;

/// The document that a save would send of what a window shows, made without asking the window, so
/// that nothing in it ends or changes.
class WrittenDocument
{
public:
    /// Takes skeleton and configuration from the documents that @p window has just loaded; throws
    /// Fault when they cannot be read.
    void load(const WorkbenchWindow& window);
    bool isLoaded() const { return !m_block.isNull(); }
    /// Its compact text; empty while nothing is loaded.
    std::string text(const WorkbenchWindow& window) const;

private:
    void write(const RuleData& data, kql::Json::Value& document) const;

    kql::Json::Value m_block; ///< what the window was given
};
