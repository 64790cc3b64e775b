// Times the printing of a thousand pages. Onto the recording surface it is held against measuring
// and wrapping the same text once, into a PDF against a plain program that paints the same lines,
// and the memory of a thousand pages against that of a hundred. With --check a missed target ends
// the program with 1.

#include <CLI/CLI.hpp>
#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <cstdio>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Generator.h"
#include "bench/HostedFile.h"
#include "bench/Measure.h"
#include "general/CodePage.h"
#include "general/WrappedText.h"
#include "model/printing/PrintPages.h"
#include "print/PdfSurface.h"
#include "print/QtPrintSurface.h"
#include "support/RecordingSurface.h"

namespace {

using namespace parlate;
using namespace parlate::bench;

constexpr double kMostOfWrapping = 3;
constexpr double kMostOfPlainProgram = 1.5;
constexpr double kMostOfHundredPages = 1.1;
constexpr int kFewPages = 100;
constexpr int kTwipsPerPoint = 20;

struct Options {
  int pages = 1000;
  int rounds = 7;
  bool check = false;
};

/// Prints one conversation after the other until there are so many pages.
int Print(const HostedFile& file, PrintSurface& surface, int wanted) {
  PrintPages pages(surface);
  surface.CurrentY = pages.Top();
  for (const Conversation& con : file.file.Conversations) {
    con.PrintConversation(pages, true);
    if (pages.PrintPageNumber >= wanted) break;
  }
  surface.EndDoc();
  return pages.PrintPageNumber;
}

// ---- onto the recording surface

void WrapOnce(const std::vector<std::string>& texts, PrintSurface& surface) {
  for (const std::string& text : texts) {
    const Twips height = PrintWrappedText(surface, 1000, 1000, text, true);
    Keep(height);
  }
}

Comparison OntoRecorder(const HostedFile& file, const Options& options) {
  testing_support::RecordingPrinters first;
  Print(file, *first.ShowPrinterDialog(), options.pages);
  const std::vector<std::string> texts = first.Texts();
  std::vector<double> ours;
  std::vector<double> yardstick;
  for (int round = 0; round < options.rounds; ++round) {
    testing_support::RecordingPrinters printers;
    const std::unique_ptr<PrintSurface> surface = printers.ShowPrinterDialog();
    ours.push_back(Milliseconds([&] { Keep(Print(file, *surface, options.pages)); }));
    yardstick.push_back(Milliseconds([&] { WrapOnce(texts, *surface); }));
  }
  return {"pages, recorded", Median(ours), "measure and wrap the text once", Median(yardstick),
          kMostOfWrapping};
}

// ---- into a PDF

/// What stands on the pages, in the order in which it is drawn.
struct Mark {
  enum class Kind { Text, Line, Box, Page };
  Kind kind;
  QRect place;  ///< Of a text only the corner counts.
  QString text;
  PrintFont font;
};

/// Paper of the same measures as a PDF, of which only the marks are kept.
class Collector final : public QtPrintSurface {
 public:
  explicit Collector(QPagedPaintDevice& device) : QtPrintSurface(device, "collector") {}

  std::vector<Mark> marks;

 private:
  void DrawText(std::string_view line) override {
    marks.push_back({Mark::Kind::Text, QRect(CurrentX, CurrentY, 0, 0),
                     QString::fromStdString(ToUtf8(line)), Font});
  }
  void DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) override {
    marks.push_back({Mark::Kind::Line, QRect(QPoint(x1, y1), QPoint(x2, y2)), {}, {}});
  }
  void DrawBox(Twips x1, Twips y1, Twips x2, Twips y2) override {
    marks.push_back({Mark::Kind::Box, QRect(QPoint(x1, y1), QPoint(x2, y2)), {}, {}});
  }
  void OnNewPage() override { marks.push_back({Mark::Kind::Page, {}, {}, {}}); }
};

QFont FontOf(const PrintFont& font) {
  QFont painted(QString::fromStdString(font.Name));
  painted.setPixelSize(font.Size * kTwipsPerPoint);
  painted.setBold(font.Bold);
  painted.setItalic(font.Italic);
  return painted;
}

/// As somebody would write it who only wants these lines on these pages.
void PaintPlainly(const std::vector<Mark>& marks, const QString& path) {
  QFile out(path);
  if (!out.open(QIODevice::WriteOnly)) throw std::runtime_error("the PDF cannot be written");
  QPdfWriter writer(&out);
  PreparePages(writer);
  QPainter painter(&writer);
  PrintFont last;
  int ascent = 0;
  for (const Mark& mark : marks) {
    switch (mark.kind) {
      case Mark::Kind::Text:
        if (last.Name.empty() || !(last == mark.font)) {
          painter.setFont(FontOf(mark.font));
          ascent = painter.fontMetrics().ascent();
          last = mark.font;
        }
        painter.drawText(mark.place.topLeft() + QPoint(0, ascent), mark.text);
        break;
      case Mark::Kind::Line:
        painter.drawLine(mark.place.topLeft(), mark.place.bottomRight());
        break;
      case Mark::Kind::Box:
        painter.fillRect(mark.place, Qt::lightGray);
        break;
      case Mark::Kind::Page:
        writer.newPage();
    }
  }
  painter.end();
}

void PrintPdf(const HostedFile& file, const QString& path, int pages) {
  auto sink = std::make_shared<FileSink>(path.toStdString(), FileSink::Content::Replace);
  const std::unique_ptr<PrintSurface> surface = MakePdfSurface(sink, "PDF");
  Print(file, *surface, pages);
}

std::vector<Mark> MarksOf(const HostedFile& file, int pages) {
  QByteArray nothing;
  QBuffer buffer(&nothing);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  PreparePages(writer);
  Collector collector(writer);
  Print(file, collector, pages);
  return std::move(collector.marks);
}

Comparison IntoPdf(const HostedFile& file, const Options& options, const QTemporaryDir& folder) {
  const std::vector<Mark> marks = MarksOf(file, options.pages);
  const QString ourPath = folder.filePath(QStringLiteral("ours.pdf"));
  const QString plainPath = folder.filePath(QStringLiteral("plain.pdf"));
  std::vector<double> ours;
  std::vector<double> yardstick;
  for (int round = 0; round < options.rounds; ++round) {
    ours.push_back(Milliseconds([&] { PrintPdf(file, ourPath, options.pages); }));
    yardstick.push_back(Milliseconds([&] { PaintPlainly(marks, plainPath); }));
  }
  return {"pages, PDF", Median(ours), "a plain program's PDF", Median(yardstick),
          kMostOfPlainProgram};
}

/// The most memory that a process of its own needs for so many pages, with the file it prints.
double MegabytesFor(const HostedFile& file, const QString& path, int pages) {
  constexpr double kKilobytes = 1024;
  return InChild([&] {
    PrintPdf(file, path, pages);
    return PeakKilobytes() / kKilobytes;
  });
}

int Bench(const Options& options) {
  HostedFile file;
  // Twelve events fill a page, more or less.
  file.LoadBytes(MakeFile({.conversations = options.pages / 5 + 1, .events = 100, .seed = 1}));
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("memory.pdf"));
  const Comparison memory = {"memory of the pages", MegabytesFor(file, path, options.pages),
                             "a hundred pages", MegabytesFor(file, path, kFewPages),
                             kMostOfHundredPages};
  const std::vector<Comparison> times = {OntoRecorder(file, options),
                                         IntoPdf(file, options, folder)};
  std::printf("%d pages, medians of %d rounds\n", options.pages, options.rounds);
  const bool timesMet = Report(times);
  const bool memoryMet = Report({&memory, 1}, "MB");
  return options.check && !(timesMet && memoryMet) ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Times the printing of many pages."};
  Options options;
  app.add_option("--pages", options.pages)->check(CLI::Range(kFewPages + 1, 10000));
  app.add_option("--rounds", options.rounds)->check(CLI::Range(1, 1000));
  app.add_flag("--check", options.check, "End with 1 if a target is missed");
  CLI11_PARSE(app, argc, argv);
  try {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return Bench(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}
