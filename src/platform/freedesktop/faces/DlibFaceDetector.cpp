// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/faces/DlibFaceDetector.h"

#include "base/Words.h"
#include "platform/freedesktop/faces/WorkingPicture.h"

#include <QFile>

#include <dlib/image_processing/object_detector.h>
#include <dlib/image_processing/scan_fhog_pyramid.h>

#include <cstring>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

// What unpack-face-detector has written; the header that names the type holds all of the detector.
using Detector = dlib::object_detector<dlib::scan_fhog_pyramid<dlib::pyramid_down<6>>>;

Detector readDetector()
{
    QFile file(u":/faces/detector.dat"_s);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the detector is missing");
    std::istringstream stream(file.readAll().toStdString());
    Detector detector;
    dlib::deserialize(detector, stream);
    return detector;
}

/// At 0, the detector's own threshold, one screenshot in sixteen had a face where there was none.
constexpr double threshold = 0.3;

dlib::array2d<unsigned char> pixelsOf(const QImage& grey)
{
    dlib::array2d<unsigned char> pixels(grey.height(), grey.width());
    for (int y = 0; y < grey.height(); ++y)
        std::memcpy(&pixels[y][0], grey.constScanLine(y), std::size_t(grey.width()));
    return pixels;
}

} // namespace

struct DlibFaceDetector::Engine {
    Detector find = readDetector();
};

DlibFaceDetector::DlibFaceDetector() = default;
DlibFaceDetector::~DlibFaceDetector() = default;

Result<QList<QRectF>> DlibFaceDetector::detect(const QImage& picture)
{
    QList<QRectF> faces;
    const WorkingPicture working(picture);
    if (working.grey().isNull())
        return faces;
    try {
        if (!m_engine)
            m_engine = std::make_unique<Engine>();
        for (const auto& found : m_engine->find(pixelsOf(working.grey()), threshold))
            faces.append(working.face(QRectF(double(found.left()), double(found.top()),
                double(found.width()), double(found.height()))));
    } catch (const std::exception& reason) {
        return Error::failed(Words::tr("Faces cannot be looked for: %1.")
                                 .arg(QString::fromLocal8Bit(reason.what())));
    }
    return faces;
}
