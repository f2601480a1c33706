#pragma once

#include "fuzz/pairs/attribute.h"

#include <random>

/// Makes pairs of template and configuration. Conforming ones have what the template names, in
/// the kinds and places that it names; in the others members are missing, null, of other kinds or
/// more than there should be, in either document.
class PairMaker
{
public:
    PairMaker(unsigned seed, bool conforming);

    kql::Json::Value templateDocument;
    kql::Json::Value config;
    std::vector<Section> sections;

private:
    using Value = kql::Json::Value;

    int pick(int count) { return int(m_random() % unsigned(count)); }
    bool isSpoilt(int percent) { return !m_conforming && pick(100) < percent; }

    void addSection(const char* name, const char* parent);
    Attribute attribute(int number, bool mayDraw);
    void describe(const Attribute& attribute, Value& controls);
    Value sample(const Attribute& attribute);
    Value value(const Attribute& attribute);
    Value points(int count);
    Value oddity();
    Value prototype(const Section& section);
    Value entry(const Section& section, const Value& prototype);
    void addEntries(const Section& section, bool isObject, const Value& prototype);
    void addFixedScenes();

    std::mt19937 m_random;
    bool m_conforming;
};
