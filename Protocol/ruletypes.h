#pragma once

#include "draw/figuretypes.h"

/// Scenes of a template; selects the panel of a scene.
enum class SceneType : int {
    None = 0,
    CalibrateArea = 1,
    FightCalibrate = 2,
    Lanes = 3,
    Rules = 4,
    Global = 5,
    Detection = 6,
};

/// Types of attribute values. The numbers are also the type tags of the variants that hold them.
enum class ValueType : int {
    None = 0,
    Bool = 1,
    Int = 2,
    Float = 6,
    String = 10,
    ArrayInt = 21, ///< a minimum and a maximum, held as a QSize; -1 is "empty"
    Point = 25,
    Object = 1024, ///< JSON text
};

/// What edits an attribute: figures below 100, control rows from 102.
enum class FacadeType : int {
    None = 0,
    Region = 2,
    Line = 3,
    DirectLine = 4,
    Rect = 5,
    VerticalStaff = 6,
    HorizontalStaff = 7,
    Lane = 8,
    Parallelogram = 9,
    InputBoxNumber = 102,
    CheckBox = 103,
    RadioButton = 104,
    Bool = 105,
    NumericalInterval = 106,
};

/// Comparison of a cross-field check.
enum class CheckRuleOperatorType : int {
    None = 0,
    Greater = 1,
    Less = 2,
    Equal = 3,
    GreaterOrEqual = 4,
    LessOrEqual = 5,
};
