#pragma once

#include <QDateTime>
#include <QString>

namespace UICommonMdl
{

enum class PictureState { Connecting, Playing, NoSignal, Ended };

/// What a picture source says about itself.
struct PictureStatus {
    PictureState state = PictureState::Connecting;
    QString reason;        ///< why there is no signal, for the operator
    QDateTime lastPicture; ///< when the last picture came; invalid when none ever did
};

} // namespace UICommonMdl
