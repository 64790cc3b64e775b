#include "print/PdfSurface.h"

#include <QGuiApplication>
#include <QIODevice>
#include <QLocale>
#include <QPageSize>
#include <QPdfWriter>
#include <optional>
#include <utility>

#include "general/RuntimeError.h"
#include "print/QtPrintSurface.h"

namespace parlate {

namespace {

/// Hands the bytes of the toolkit to a sink, and remembers a failure that the toolkit drops.
class SinkDevice final : public QIODevice {
 public:
  explicit SinkDevice(std::shared_ptr<ByteSink> sink) : sink_(std::move(sink)) {
    open(QIODevice::WriteOnly);
  }

  [[nodiscard]] bool Failed() const { return failed_; }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char* data, qint64 size) override {
    if (failed_) return -1;
    try {
      sink_->Write(data, static_cast<std::size_t>(size));
    } catch (const RuntimeError&) {
      failed_ = true;
      return -1;
    }
    return size;
  }

 private:
  std::shared_ptr<ByteSink> sink_;
  bool failed_ = false;
};

/// Fonts come through an application, which a program without windows has to make.
class FontsWithoutDisplay {
 public:
  FontsWithoutDisplay() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the toolkit has to say of a desktop that is not there is nothing to a tool's user.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    application_.emplace(argc_, argv_);
  }

 private:
  char name_[8] = "parlate";
  char* argv_[2] = {name_, nullptr};
  int argc_ = 1;
  std::optional<QGuiApplication> application_;
};

QPageSize PageSizeOfLocale() {
  const bool imperial = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(imperial ? QPageSize::Letter : QPageSize::A4);
}

/// What the surface draws on has to be there before it.
struct PdfDevice {
  explicit PdfDevice(std::shared_ptr<ByteSink> out) : sink(std::move(out)), writer(&sink) {
    writer.setCreator(QStringLiteral("Parlate"));
    writer.setPageSize(PageSizeOfLocale());
    PreparePages(writer);
  }

  FontsWithoutDisplay fonts;
  SinkDevice sink;
  QPdfWriter writer;
};

class PdfSurface final : private PdfDevice, public QtPrintSurface {
 public:
  PdfSurface(std::shared_ptr<ByteSink> out, std::string deviceName)
      : PdfDevice(std::move(out)), QtPrintSurface(writer, std::move(deviceName)) {}

 private:
  void OnNewPage() override {
    RequireSink();
    QtPrintSurface::OnNewPage();
  }
  void OnEndDoc() override {
    QtPrintSurface::OnEndDoc();
    RequireSink();
  }
  void RequireSink() const {
    if (sink.Failed()) {
      throw RuntimeError(RuntimeError::kPrinterError, "the document cannot be written");
    }
  }
};

}  // namespace

std::unique_ptr<PrintSurface> MakePdfSurface(std::shared_ptr<ByteSink> out,
                                             const std::string& deviceName) {
  return std::make_unique<PdfSurface>(std::move(out), deviceName);
}

}  // namespace parlate
