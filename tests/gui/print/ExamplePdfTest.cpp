// The example as the command line prints it, read back and held against the file, word by word.

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <string>
#include <type_traits>

#include "mainwindow/WindowFixture.h"
#include "model/Tables.h"
#include "model/Vocabulary.h"
#include "print/PdfText.h"
#include "widgets/CodePageText.h"

namespace parlate {
namespace {

using testing_support::RunningProgram;
using testing_support::TemporaryFolder;

QStringList Words(const QString& text) {
  return text.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
}

/// The words on the pages, without what only comes from the pages: the numbers at their feet and
/// the titles that are repeated at their heads.
QStringList PrintedWords(const QString& text) {
  static const QRegularExpression ofPages(
      QStringLiteral("^\\f?(Page \\d+|Conversation: .* \\(continued\\))$"),
      QRegularExpression::MultilineOption);
  QString left = text;
  return Words(left.remove(ofPages));
}

/// What a page is to say of an event, one text after the other.
class ExpectedTexts {
 public:
  void AddConversation(const Conversation& con) {
    if (con.events.Empty()) return;
    Add("Conversation: " + GetTableItemName(kActorTable, con.NPCID) + " - " + con.conName);
    if (!con.flagRefs.Empty()) Add("Conversation Flags");
    AddFlags(con.flagRefs);
    for (const EventItem& event : con.events) AddEvent(event);
  }

  QStringList words;

 private:
  void Add(const std::string& text) { words += Words(ToQString(text)); }
  void AddFlags(const FlagList& flags) {
    for (const FlagRef& flag : flags) Add(flag.Desc());
  }
  void AddEvent(const EventItem& event) {
    Add(event.eventLabel);
    std::int32_t actor = -1;
    event.Visit([&actor](const auto& body) { actor = body.GetActorID(); });
    if (event.eventType != kSpeech) {
      Add(std::string(eventTypeNames.at(static_cast<std::size_t>(event.eventType))));
    }
    if (actor != -1 && event.eventType != kTransferObject)
      Add(GetTableItemName(kActorTable, actor));
    event.Visit([this](const auto& body) { AddBody(body); });
  }
  template <class Event>
  void AddBody(const Event& event) {
    if constexpr (std::is_same_v<Event, EventSpeech>) {
      Add(event.speech);
    } else if constexpr (std::is_same_v<Event, EventComment>) {
      Add(event.commentText);
    } else if constexpr (std::is_same_v<Event, EventAddNote>) {
      Add(event.noteText);
    } else if constexpr (std::is_same_v<Event, EventChoice>) {
      for (const ChoiceItem& choice : event.Choices) AddChoice(choice);
    } else if constexpr (std::is_same_v<Event, EventSetFlag> ||
                         std::is_same_v<Event, EventCheckFlag>) {
      AddFlags(event.flagRefs);
    } else if constexpr (std::is_same_v<Event, EventRandom>) {
      Add("Random Targets:");
      for (std::int32_t i = 0; i <= event.GetLabelCount(); ++i) Add(event.GetLabel(i));
    } else if constexpr (std::is_same_v<Event, EventAddGoal>) {
      Add("Goal Name: " + event.goalName);
      Add(event.bGoalCompleted ? "Completed" : "Goal Text: " + event.goalText + " (Primary Goal)");
    } else if constexpr (!std::is_same_v<Event, EventCheckPersona>) {
      Add(event.BuildEventListString());
    }
  }
  void AddChoice(const ChoiceItem& choice) {
    Add("\x95 " + choice.text);
    if (!choice.label.empty()) Add("Jump To: " + choice.label);
    if (choice.skillID > -1) Add("Requires Skill " + GetTableItemName(kSkillTable, choice.skillID));
    if (!choice.flagRefs.Empty()) Add("Flags: " + BuildFlagsString(choice.flagRefs));
  }
};

TEST(ExamplePdf, HoldsEveryLineOfTheFileInOrderAndNothingElse) {
  const TemporaryFolder folder;
  const std::string pdf = folder.File("example.pdf");
  // At 8 points every row fits on the paper, and no event is begun at a foot and again overleaf.
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));  // the paper is A4
  QProcess tool;
  tool.setProcessEnvironment(environment);
  tool.start(QStringLiteral(PARLATE_CLI),
             {QStringLiteral("print"), QStringLiteral(PARLATE_EXAMPLE), QString::fromStdString(pdf),
              QStringLiteral("--font-size"), QStringLiteral("8")});
  ASSERT_TRUE(tool.waitForFinished());
  ASSERT_EQ(tool.exitCode(), 0);

  const std::string copy = folder.File("example.con");
  ASSERT_TRUE(QFile::copy(QStringLiteral(PARLATE_EXAMPLE), QString::fromStdString(copy)));
  RunningProgram program;
  ASSERT_TRUE(program.Start(copy));
  ExpectedTexts expected;
  for (const Conversation& con : program.shell().GetConFile()->Conversations) {
    expected.AddConversation(con);
  }

  const QStringList printed = PrintedWords(TextOfPdf(pdf));
  ASSERT_GT(expected.words.size(), 3000) << "the example is no small file";
  for (qsizetype i = 0; i < qMin(printed.size(), expected.words.size()); ++i) {
    ASSERT_EQ(printed[i].toStdString(), expected.words[i].toStdString())
        << "behind: " << printed.mid(qMax(qsizetype{0}, i - 12), 12).join(u' ').toStdString();
  }
  EXPECT_EQ(printed.size(), expected.words.size());
}

}  // namespace
}  // namespace parlate
