#include "Protocol/spelling.h"

#include "Protocol/spellinglists.h"

namespace
{

template<typename Type>
struct Spelled {
    const char* text;
    Type type;
};

struct Facade {
    const char* text; ///< empty: made by the module, never asked for by a template
    FacadeType type;
    BaseDrawType figure; ///< None for control rows
};

constexpr Facade kFacades[] = {
    {"region", FacadeType::Region, BaseDrawType::Polygon},
    {"line", FacadeType::Line, BaseDrawType::DirectionLine},
    {"directLine", FacadeType::DirectLine, BaseDrawType::Direction},
    {"rect", FacadeType::Rect, BaseDrawType::Rectangle},
    {"", FacadeType::VerticalStaff, BaseDrawType::VerticalRuler},
    {"", FacadeType::HorizontalStaff, BaseDrawType::HorizontalRuler},
    {"", FacadeType::Lane, BaseDrawType::VehicleLane},
    {"parallelogram", FacadeType::Parallelogram, BaseDrawType::Parallelogram},
    {"inputBoxNumber", FacadeType::InputBoxNumber, BaseDrawType::None},
    {"checkbox", FacadeType::CheckBox, BaseDrawType::None},
    {"radioButton", FacadeType::RadioButton, BaseDrawType::None},
    {"bool", FacadeType::Bool, BaseDrawType::None},
    {"numericalInterval", FacadeType::NumericalInterval, BaseDrawType::None},
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

template<typename Row, std::size_t Size>
QStringList textsOf(const Row (&table)[Size])
{
    QStringList texts;
    for (const Row& row : table) {
        if (*row.text)
            texts.append(QString::fromLatin1(row.text));
    }
    return texts;
}

} // namespace

FacadeType Spelling::toFacadeType(const QString& text)
{
    for (const Facade& facade : kFacades) {
        if (!text.isEmpty() && text == QLatin1String(facade.text))
            return facade.type;
    }
    return FacadeType::None;
}

BaseDrawType Spelling::toDrawType(FacadeType type)
{
    for (const Facade& facade : kFacades) {
        if (facade.type == type)
            return facade.figure;
    }
    return BaseDrawType::None;
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

QStringList SpellingLists::facades()
{
    return textsOf(kFacades);
}

QStringList SpellingLists::valueTypes()
{
    return textsOf(kValueTypes);
}

QStringList SpellingLists::directions()
{
    return textsOf(kDirections);
}

QStringList SpellingLists::operators()
{
    return textsOf(kOperators);
}
