#include "platform/qt/pictures.h"

#include <QPixmap>

#include <map>

#include "platform/qt/convert.h"

namespace tallyvane {

const LoadedPicture& loadPicture(const std::string& file) {
    static std::map<std::string, LoadedPicture> loaded;
    const auto found = loaded.find(file);
    if (found != loaded.end())
        return found->second;
    const QString path = QStringLiteral(":/pictures/") + toQt(file);
    const QPixmap single(path);
    QPixmap twin(QString(path).replace(QLatin1Char('.'), QStringLiteral("@2x.")));
    twin.setDevicePixelRatio(2);
    LoadedPicture picture{{}, single.size()};
    picture.icon.addPixmap(single);
    picture.icon.addPixmap(twin);
    return loaded[file] = picture;
}

} // namespace tallyvane
