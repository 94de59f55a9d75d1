#include "shell/dialogs.h"

#include "shell/one_line.h"
#include "shell/qt_text.h"
#include "shell/size_on_screens.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace coinlet {

namespace {

struct NamedAnswer {
    Answer answer;
    QMessageBox::StandardButton button;
};
constexpr NamedAnswer answers[] = {
    {Answer::Ok, QMessageBox::Ok},
    {Answer::Cancel, QMessageBox::Cancel},
    {Answer::Yes, QMessageBox::Yes},
    {Answer::No, QMessageBox::No},
};

QMessageBox::StandardButton ButtonOf(Answer answer) {
    return std::find_if(std::begin(answers), std::end(answers),
                        [=](const NamedAnswer& entry) { return entry.answer == answer; })
        ->button;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Stop:
            return QMessageBox::Critical;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Warning:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

/// Small pictures on the buttons would be of another family than the program's own.
void TakeIconsOff(QDialog& dialog) {
    for (auto* button : dialog.findChildren<QPushButton*>())
        button->setIcon({});
}

/// What the user answers, for whom the program waits.
int AnswerTo(QDialog& dialog, BusyWatch& busy) {
    const BusyWatch::Pause pause(busy);
    return dialog.exec();
}

}  // namespace

Answer ShowMessageBox(QWidget* parent, const Message& message, BusyWatch& busy) {
    const bool question = message.buttons == MessageButtons::YesNo;
    QMessageBox box(IconOf(message.icon), ToQString(message.title),
                    ToQString(message.prompt).replace(QLatin1String("\r\n"), QLatin1String("\n")),
                    question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(question ? QMessageBox::No : QMessageBox::Ok);
    const bool toldNo = question && message.standard == Answer::No;
    box.setDefaultButton(ButtonOf(toldNo ? Answer::No : question ? Answer::Yes : Answer::Ok));
    TakeIconsOff(box);
    const SameSizeOnScreens sameSize(box);
    const int pressed = AnswerTo(box, busy);
    const auto* found = std::find_if(std::begin(answers), std::end(answers),
                                     [=](const NamedAnswer& entry) { return entry.button == pressed; });
    return found == std::end(answers) ? (question ? Answer::No : Answer::Ok) : found->answer;
}

std::string ShowInputBox(QWidget* parent, const std::string& prompt, const std::string& title,
                         const std::string& standard, BusyWatch& busy) {
    QInputDialog box(parent);
    box.setWindowTitle(ToQString(title));
    box.setLabelText(ToQString(prompt).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    box.setTextValue(ToQString(standard));
    // The box makes its buttons when it is first asked for its size.
    box.adjustSize();
    TakeIconsOff(box);
    for (auto* field : box.findChildren<QLineEdit*>())
        KeepToOneLine(*field);
    const SameSizeOnScreens sameSize(box);
    return AnswerTo(box, busy) == QDialog::Accepted ? ToUtf8(box.textValue()) : std::string();
}

std::string ShowFolderPicker(QWidget* parent, const std::string& title, const std::string& start,
                             BusyWatch& busy) {
    const QString folder = ToQString(start);
    const bool isThere = !folder.isEmpty() && QFileInfo(folder).isDir();
    QFileDialog picker(parent, ToQString(title), isThere ? folder : QDir::homePath());
    picker.setFileMode(QFileDialog::Directory);
    picker.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    TakeIconsOff(picker);
    const SameSizeOnScreens sameSize(picker);
    if (AnswerTo(picker, busy) != QDialog::Accepted || picker.selectedFiles().isEmpty()) return {};
    return ToUtf8(picker.selectedFiles().constFirst());
}

}  // namespace coinlet
