#pragma once

#include <QCoreApplication>
#include <QString>

class BaseTabelScene;
class CrossHair;

namespace IntelligentRulesUI
{

/// What readers of the screen say of the picture: the figures that are worked on, what is being
/// drawn, and where the cross-hair is.
class PictureWords
{
    Q_DECLARE_TR_FUNCTIONS(PictureWords)

public:
    /// The panel's data and canvas must be there.
    static QString of(const BaseTabelScene& panel, const CrossHair& crossHair);

private:
    static QString figures(const BaseTabelScene& panel);
    static QString place(const BaseTabelScene& panel, const CrossHair& crossHair);
};

} // namespace IntelligentRulesUI
