#pragma once

#include "host/json/value.h"

#include <string>
#include <vector>

/// One attribute of a made template, and where its value lies.
struct Attribute {
    enum class Type { Bool, Int, Float, Text, Texts, Interval, Object, None, Figure };

    Type type = Type::Int;
    std::string key;
    std::string path;
    int index = -1;
    std::string facade;

    /// What @p entry has in its place, the element where it has an index; null when there is none.
    kql::Json::Value* in(kql::Json::Value& entry) const;
    const kql::Json::Value* in(const kql::Json::Value& entry) const;
    /// The field that the path leads to, a list where there is an index; null as above.
    kql::Json::Value* fieldIn(kql::Json::Value& entry) const;
    /// Makes the place in @p entry, with nothing in it.
    kql::Json::Value& make(kql::Json::Value& entry) const;
    bool isPlain() const { return path.find_first_of(".[") == std::string::npos; }
};

/// The entries of one scene in a made template.
struct Section {
    std::string name;
    std::string parent;
    std::vector<Attribute> attributes;

    bool hasNames() const { return name == "rules"; }
};
