#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

/**
 * A video to be written as a file: each picture is red on the left and blue on the right.
 * The container follows from the file's name.
 */
struct VideoFile {
    QByteArray codec; ///< name of an encoder, such as "mjpeg"
    QSize size{64, 48};
    int picturesPerSecond = 25;
    int pictures = 10;
    QSize points{1, 1}; ///< width and height of a picture point
    int turn = 0;       ///< by which it is to be shown, in degrees clockwise

    bool write(const QString& path) const;
};
