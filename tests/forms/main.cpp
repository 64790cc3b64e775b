#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include "mainwindow/FormInventory.h"
#include "mainwindow/Inventory.h"
#include "platform/FontSetup.h"

namespace {

void PrintControls(QTextStream& out, const QJsonArray& controls, const QString& indent) {
  for (const QJsonValue value : controls) {
    if (!value.isObject()) continue;
    const QJsonObject control = value.toObject();
    out << indent << control["name"].toString() << ", " << control["kind"].toString();
    const QString text = control["text"].toString();
    if (!text.isEmpty()) out << ", \"" << text << '"';
    const QString shortcut = control["shortcut"].toString();
    if (!shortcut.isEmpty()) out << ", " << shortcut;
    if (!control["enabled"].toBool()) out << ", grey";
    if (!control["visible"].toBool()) out << ", hidden";
    out << '\n';
    PrintControls(out, control["items"].toArray(), indent + "  ");
  }
}

void PrintForm(QTextStream& out, const QJsonObject& form) {
  out << form["form"].toString() << ", \"" << form["caption"].toString() << "\"\n";
  for (const char* part : {"controls", "menus", "popups"}) {
    PrintControls(out, form[QLatin1String(part)].toArray(), "  ");
  }
}

bool SavePicture(QWidget& form, const QString& folder) {
  form.show();
  QCoreApplication::processEvents();
  const bool saved = form.grab().save(QDir(folder).filePath(form.objectName() + ".png"));
  form.hide();
  return saved;
}

}  // namespace

int main(int argc, char** argv) {
  // Nothing needs to be seen, so nothing needs a screen.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  parlate::ApplyLook();

  QCommandLineParser parser;
  parser.setApplicationDescription("Lists the controls of every form in tab order.");
  parser.addHelpOption();
  const QCommandLineOption asJson("json", "Print JSON instead of lines.");
  const QCommandLineOption pictures("pictures", "Save a picture of each form.", "folder");
  parser.addOptions({asJson, pictures});
  parser.process(application);

  QTextStream out(stdout);
  QJsonArray forms;
  for (const parlate::FormFactory& factory : parlate::AllForms()) {
    const std::unique_ptr<QWidget> form = factory.load();
    forms.append(parlate::Inventory(*form));
    if (parser.isSet(pictures) && !SavePicture(*form, parser.value(pictures))) {
      QTextStream(stderr) << "No picture of " << factory.name << " could be saved.\n";
      return 1;
    }
  }
  if (parser.isSet(asJson)) {
    out << QJsonDocument(forms).toJson();
  } else {
    for (const QJsonValue form : forms) PrintForm(out, form.toObject());
  }
  return 0;
}
