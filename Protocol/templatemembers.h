#pragma once

#include "Protocol/ruletypes.h"

#include <string_view>
#include <vector>

/// The objects that a template is made of, each with members of its own. Details are told apart by
/// what their facade has read.
enum class TemplatePlace {
    None,
    Root,
    Description,
    CalibrateArea,
    FightCalibrate,
    Lanes,
    RuleDescription,
    Rules,
    PlainSection, ///< "global" and "detectArea"
    Control,
    Protocol,
    Condition,
    Dependency,
    Check,
    CheckRule,
    Items, ///< its members are details, under the keys of controls
    FigureDetails,
    NumberBoxDetails,
    ChoiceDetails,
    SwitchDetails,
    PlainDetails,  ///< of a facade that has nothing further read, or of none
    UnsureDetails, ///< of a facade that is spelled wrong: what any has read
    Choice,
};

/// A member that is read of a template: its name, and the kinds of JSON in which it says something.
struct TemplateMember {
    enum Kind : unsigned {
        Text = 1,
        Whole = 2, ///< a whole number that 32 bits hold
        Number = 4,
        Switch = 8,
        List = 16,
        Object = 32,
        Null = 64, ///< where it has a meaning of its own
        Cut = 128, ///< a number that is cut to a whole one, which 32 bits hold
    };

    const char* name;
    unsigned kinds;
    bool isNeeded = false;
    /// What the object is, or each one in the list.
    TemplatePlace inside = TemplatePlace::None;
    unsigned elements = 0; ///< kinds of those in a list
    bool isPair = false;   ///< a list of two at least, of which two are read
};

/// What TemplateReader reads of a template and nothing else: a test holds the two together.
namespace TemplateMembers
{

const std::vector<TemplateMember>& of(TemplatePlace place);
/// Null where there is none of that name.
const TemplateMember* find(TemplatePlace place, std::string_view name);
/// What details of @p facade are, one that is not None.
TemplatePlace detailsOf(FacadeType facade);

} // namespace TemplateMembers
