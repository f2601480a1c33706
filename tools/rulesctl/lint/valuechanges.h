#pragma once

#include "host/json/value.h"

#include <functional>
#include <string>

/// Finds what of one JSON document another one has no more.
class ValueChanges
{
public:
    enum class Kind { Dropped, Changed };
    /// @p found is the value at @p pointer in the first document, @p left what is in its place in
    /// the other one.
    using Tell = std::function<void(Kind kind, const std::string& pointer,
                                    const kql::Json::Value& found, const kql::Json::Value& left)>;
    /// Takes over a value that is compared in another way; false for any other.
    using Hook = std::function<bool(const ValueChanges& changes, const kql::Json::Value& before,
                                    const std::string& pointer)>;

    ValueChanges(Tell tell, Hook hook) : m_tell(std::move(tell)), m_hook(std::move(hook)) {}

    /**
     * Tells what is gone or another, as deep inside as it can be named: a list that has another
     * length or order as a whole. Null says nothing, members in another order are the same, and
     * numbers compare by value. What is only added is not told.
     */
    void compare(const kql::Json::Value& before, const kql::Json::Value& after,
                 const std::string& pointer) const;
    /// The same of values that are not taken over as a whole.
    void compareInside(const kql::Json::Value& before, const kql::Json::Value& after,
                       const std::string& pointer) const;

private:
    void compareMembers(const kql::Json::Value& before, const kql::Json::Value& after,
                        const std::string& pointer) const;
    void compareElements(const kql::Json::Value& before, const kql::Json::Value& after,
                         const std::string& pointer) const;

    Tell m_tell;
    Hook m_hook;
};
