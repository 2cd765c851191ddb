#include "platform/qt/file_surfaces.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "platform/qt/painter_graphics.h"
#include "platform/qt/qt_bitmap.h"

namespace tallyvane {

namespace {

QString fileName(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

} // namespace

struct FileSurfaces::Parts {
    Parts(int& argc, char** argv) : application(argc, argv) { Bitmaps::use(&bitmaps); }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;
    ~Parts() { Bitmaps::use(nullptr); }

    QGuiApplication application;
    QtBitmaps bitmaps;
};

FileSurfaces::FileSurfaces(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    parts_ = std::make_unique<Parts>(argc, argv);
}

FileSurfaces::~FileSurfaces() = default;

bool FileSurfaces::writePicture(const std::string& path, int width, int height, const Drawing& draw) const {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        PainterGraphics g(painter, image.rect());
        draw(g);
    }
    return image.save(fileName(path));
}

bool FileSurfaces::writePdf(const std::string& path, int width, int height, int dotsPerInch,
                            const std::vector<Drawing>& pages) const {
    QPdfWriter writer(fileName(path));
    writer.setResolution(dotsPerInch);
    const QSizeF inches = QSizeF(width, height) / dotsPerInch;
    writer.setPageSize(QPageSize(inches, QPageSize::Inch));
    writer.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    for (const Drawing& draw : pages) {
        if (&draw != &pages.front() && !writer.newPage())
            return false;
        PainterGraphics g(painter, {0, 0, width, height});
        draw(g);
    }
    return painter.end();
}

} // namespace tallyvane
