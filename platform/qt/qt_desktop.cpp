#include "platform/qt/qt_desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QUrl>

#include <algorithm>

#include "platform/qt/convert.h"

namespace tallyvane {

void QtDesktop::message(const std::string& text) {
    // The window below may go while the message is up, and takes the message with it.
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::NoIcon, QStringLiteral("Tallyvane"), toQt(text),
                                                      QMessageBox::Ok, QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

std::optional<std::size_t> QtDesktop::ask(const std::string& question, const std::vector<std::string>& answers,
                                          std::size_t onEscape) {
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Tallyvane"), toQt(question));
    box.setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton*> buttons;
    buttons.reserve(answers.size());
    for (const std::string& answer : answers) // of one role they keep their order on every desktop
        buttons.push_back(box.addButton(toQt(answer), QMessageBox::ActionRole));
    box.setDefaultButton(static_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons.at(onEscape));
    box.exec();
    if (quitAsked_ || box.clickedButton() == nullptr)
        return std::nullopt;
    const auto clicked = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return static_cast<std::size_t>(clicked - buttons.begin());
}

void QtDesktop::beep() { QApplication::beep(); }

bool QtDesktop::openUrl(const std::string& address) { return QDesktopServices::openUrl(QUrl(toQt(address))); }

bool QtDesktop::openFile(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(QByteArray::fromStdString(path))));
}

void QtDesktop::quit(int code) {
    quitAsked_ = true;
    quitCode_ = code;
    QApplication::exit(code);
}

} // namespace tallyvane
