#pragma once

#include <QColor>

class QPainter;

namespace UICommonMdl
{

/// A vehicle of the sample camera's street, lengths in metres (see streetview.h).
struct SampleVehicle {
    enum class Kind { Car, Van, Bus };

    Kind kind = Kind::Car;
    QColor color;
    bool comesNearer = false; ///< its front is towards the camera
};

/// Length of a vehicle of @p kind in metres.
qreal vehicleLength(SampleVehicle::Kind kind);

/// Paints the vehicle in the middle of a lane at @p x, its near end at @p z.
void paintVehicle(QPainter& painter, const SampleVehicle& vehicle, qreal x, qreal z);

} // namespace UICommonMdl
