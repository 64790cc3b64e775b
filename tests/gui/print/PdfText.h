#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QString>
#include <string>

namespace parlate {

/// What a reader finds in a PDF, line by line in the order in which it was drawn.
inline QString TextOfPdf(const std::string& path) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"),
               {QStringLiteral("-raw"), QString::fromStdString(path), QStringLiteral("-")});
  EXPECT_TRUE(reader.waitForFinished());
  EXPECT_EQ(reader.exitCode(), 0);
  return QString::fromUtf8(reader.readAllStandardOutput());
}

}  // namespace parlate
