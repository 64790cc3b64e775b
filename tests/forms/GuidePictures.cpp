// Makes the pictures of the event editor and its dialogs in the user's guide anew:
// parlate-pictures FILE FOLDER, with the example file and the folder of the pictures.

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include "mainwindow/frmConvList.h"
#include "model/TableCombos.h"
#include "platform/FontSetup.h"
#include "platform/QtComboBox.h"
#include "platform/QtListBox.h"

namespace {

using namespace parlate;

/// A user who lets everything be, with settings of their own.
class Writer final : public MessageBoxes, public FileDialogs, public SettingsStore {
 public:
  Answer Show(const MessageBox& /*box*/) override { return Answer::No; }
  std::string ShowOpen(const FileDialog& /*dialog*/) override { return {}; }
  std::string ShowSave(const FileDialog& /*dialog*/) override { return {}; }
  [[nodiscard]] std::string Get(const std::string& /*application*/, const std::string& /*section*/,
                                const std::string& key,
                                const std::string& fallback) const override {
    if (key == "Username") return "Ines";
    return key == "AudioPath" ? "/home/ines/audio" : fallback;
  }
  void Set(const std::string&, const std::string&, const std::string&,
           const std::string&) override {}
};

template <class Control>
Control& The(QWidget& form, const char* name) {
  auto* control = form.findChild<Control*>(QString::fromLatin1(name));
  if (control == nullptr) throw std::runtime_error(std::string("there is no ") + name);
  return *control;
}

void Click(QWidget& form, const char* name) {
  QTest::mouseClick(&The<QWidget>(form, name), Qt::LeftButton);
}

void ClickRow(QListWidget& list, int row, Qt::KeyboardModifiers modifiers = {}) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                    list.visualItemRect(list.item(row)).center());
}

void SelectLast(QWidget& form, const char* name) {
  auto& list = The<MultiColumnList>(form, name);
  const int last = static_cast<int>(list.Rows().ListCount()) - 1;
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.RowRect(last).center());
}

void Settle(QWidget& form) {
  form.activateWindow();
  if (!QTest::qWaitForWindowActive(&form)) throw std::runtime_error("a window does not show");
  QCoreApplication::processEvents();
}

/// Does something with the next form of that name that shows, and closes it.
void WhenShown(const char* name, std::function<void(QWidget&)> act) {
  QWidget* form = QApplication::activeModalWidget();
  if (form == nullptr || form->objectName() != QLatin1String(name) || !form->isActiveWindow()) {
    QTimer::singleShot(10, qApp, [name, act = std::move(act)] { WhenShown(name, act); });
    return;
  }
  QCoreApplication::processEvents();
  act(*form);
  form->close();
}

struct EventPicture {
  const char* name = nullptr;
  std::int32_t conversation = 0;
  std::int32_t event = 0;
  const char* list = nullptr;  ///< In which the last row is selected.
};

/// One event of each type, by the keys of the example.
constexpr EventPicture kEventPictures[] = {{"event-speech", 0, 3},
                                           {"event-choice", 0, 4, "lstChoices"},
                                           {"event-set-flags", 11, 15, "lstSetFlags"},
                                           {"event-check-flags", 11, 6},
                                           {"event-check-object", 10, 1},
                                           {"event-transfer-object", 7, 26},
                                           {"event-move-camera", 9, 2},
                                           {"event-play-animation", 10, 5},
                                           {"event-trade", 8, 2},
                                           {"event-jump", 2, 18},
                                           {"event-random-label", 14, 1},
                                           {"event-trigger", 10, 7},
                                           {"event-goal", 9, 11},
                                           {"event-note", 0, 17},
                                           {"event-skill-points", 13, 12},
                                           {"event-credits", 8, 10},
                                           {"event-check-persona", 7, 33},
                                           {"event-comment", 3, 13},
                                           {"event-end", 0, 21}};

class Guide {
 public:
  Guide(const std::string& file, const QString& folder) : folder_(folder) {
    window_.InitMainWindow();
    window_.Start(file);
    if (window_.shell().GetConFile() == nullptr) throw std::runtime_error("cannot open " + file);
  }

  /// Lets the file and its lock go.
  void Close() { window_.shell().CloseConFile(); }

  void MakeAll() {
    for (const EventPicture& picture : kEventPictures) {
      QWidget& editor = Open(picture.conversation, picture.event);
      if (picture.list != nullptr) SelectLast(editor, picture.list);
      Save(editor, picture.name);
    }
    Choices();
    Flags();
    Camera();
    Audio();
    Table();
  }

 private:
  void Save(QWidget& form, const char* name) {
    const QString path = folder_.filePath(QString::fromLatin1(name) + ".png");
    const QImage picture = form.grab().toImage().convertToFormat(QImage::Format_RGB888);
    if (!picture.save(path)) throw std::runtime_error("cannot write " + path.toStdString());
  }

  /// The event editor on that event, as a double click on its row shows it.
  QWidget& Open(std::int32_t conversation, std::int32_t event) {
    Shell& shell = window_.shell();
    shell.SelectConversationByKey(std::to_string(conversation));
    shell.lstEvents().SetListIndex(shell.SelectedCon()->events.At(event).listPos);
    shell.EditSelectedEvent();
    for (QWidget* form : QApplication::topLevelWidgets()) {
      if (form->objectName() != QLatin1String("frmEvent")) continue;
      Settle(*form);
      return *form;
    }
    throw std::runtime_error("there is no event editor");
  }

  void Choices() {
    QWidget& editor = Open(11, 4);
    SelectLast(editor, "lstChoices");
    WhenShown("frmChoiceEdit", [this](QWidget& form) {
      Save(form, "dialog-choice-edit");
      auto& tabs = The<QTabWidget>(form, "tabChoice");
      tabs.setCurrentIndex(1);
      QCoreApplication::processEvents();
      Save(form, "dialog-choice-edit-flags");
    });
    Click(editor, "cmdChoiceEdit");
    QWidget& other = Open(0, 4);
    SelectLast(other, "lstChoices");
    WhenShown("frmChoiceEdit", [this](QWidget& form) {
      The<QTabWidget>(form, "tabChoice").setCurrentIndex(2);
      QCoreApplication::processEvents();
      Save(form, "dialog-choice-edit-skills");
    });
    Click(other, "cmdChoiceEdit");
  }

  void Flags() {
    QWidget& editor = Open(11, 15);
    WhenShown("frmFlagList", [this](QWidget& form) {
      auto& flags = The<QtListBox>(form, "lstFlags");
      ClickRow(flags, 2);
      ClickRow(flags, 3, Qt::ControlModifier);
      The<QLineEdit>(form, "txtExpiration").setText(QStringLiteral("2"));
      Save(form, "dialog-flag-list");
    });
    Click(editor, "cmdSetFlagAdd");
  }

  void Camera() {
    QWidget& editor = Open(9, 2);
    The<QRadioButton>(editor, "optCameraSpecific").click();
    WhenShown("frmCameraProperties", [this](QWidget& form) {
      const std::pair<const char*, const char*> fields[] = {
          {"txtCamDistance", "1.5"}, {"txtCamCenter", "0.5"}, {"txtCamHeight", "0.8"},
          {"Text7", "-10"},          {"Text8", "45"},         {"Text9", "0"}};
      for (const auto& [name, text] : fields) The<QLineEdit>(form, name).setText(text);
      Save(form, "dialog-camera-properties");
    });
    Click(editor, "cmdEditCamera");
  }

  void Audio() {
    QWidget& editor = Open(0, 3);
    WhenShown("frmPlayAudio", [this](QWidget& form) { Save(form, "dialog-play-audio"); });
    Click(editor, "cmdPlayAudio");
  }

  void Table() {
    WhenShown("frmTableEdit", [this](QWidget& form) {
      QListWidget& rows = The<QtListBox>(form, "lstTable");
      ClickRow(rows, 3);
      Save(form, "dialog-table-edit");
      WhenShown("frmEditValue", [this](QWidget& value) { Save(value, "dialog-edit-value"); });
      Click(form, "cmdEdit");
    });
    EditTableDialog(kFlagTable);
  }

  QDir folder_;
  Workspace workspace_;
  WorkspaceScope scope_{workspace_};
  Writer writer_;
  frmConvList window_{writer_, writer_, writer_};
};

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyLook();
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 3) {
    QTextStream(stderr) << "usage: parlate-pictures FILE FOLDER\n";
    return 2;
  }
  try {
    Guide guide(arguments.at(1).toStdString(), arguments.at(2));
    guide.MakeAll();
    guide.Close();
    return 0;
  } catch (const std::exception& error) {
    QTextStream(stderr) << error.what() << '\n';
    return 1;
  }
}
