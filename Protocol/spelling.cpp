#include "Protocol/spelling.h"

#include <QString>

namespace
{

template<typename Type>
struct Spelled {
    const char* text;
    Type type;
};

constexpr Spelled<FacadeType> kFacades[] = {
    {"region", FacadeType::Region},
    {"line", FacadeType::Line},
    {"directLine", FacadeType::DirectLine},
    {"rect", FacadeType::Rect},
    {"parallelogram", FacadeType::Parallelogram},
    {"inputBoxNumber", FacadeType::InputBoxNumber},
    {"checkbox", FacadeType::CheckBox},
    {"radioButton", FacadeType::RadioButton},
    {"bool", FacadeType::Bool},
    {"numericalInterval", FacadeType::NumericalInterval},
};

constexpr Spelled<ValueType> kValueTypes[] = {
    {"bool", ValueType::Bool},          {"int", ValueType::Int},
    {"float", ValueType::Float},        {"string", ValueType::String},
    {"array int", ValueType::ArrayInt}, {"point", ValueType::Point},
    {"object", ValueType::Object},
};

constexpr Spelled<BaseDrawDirectionType> kDirections[] = {
    {"RightToLeft", BaseDrawDirectionType::RightToLeft},
    {"LeftToRight", BaseDrawDirectionType::LeftToRight},
    {"Both", BaseDrawDirectionType::Both},
};

constexpr Spelled<CheckRuleOperatorType> kOperators[] = {
    {">", CheckRuleOperatorType::Greater},      {"<", CheckRuleOperatorType::Less},
    {"==", CheckRuleOperatorType::Equal},       {">=", CheckRuleOperatorType::GreaterOrEqual},
    {"<=", CheckRuleOperatorType::LessOrEqual},
};

template<typename Type, std::size_t Size>
Type lookUp(const Spelled<Type> (&table)[Size], const QString& text)
{
    for (const Spelled<Type>& spelled : table) {
        if (text == QLatin1String(spelled.text))
            return spelled.type;
    }
    return Type::None;
}

} // namespace

FacadeType Spelling::toFacadeType(const QString& text)
{
    return lookUp(kFacades, text);
}

ValueType Spelling::toValueType(const QString& text)
{
    return lookUp(kValueTypes, text);
}

BaseDrawDirectionType Spelling::toDirectionType(const QString& text)
{
    return lookUp(kDirections, text);
}

CheckRuleOperatorType Spelling::toOperatorType(const QString& text)
{
    return lookUp(kOperators, text);
}
