#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <stdexcept>
#include <string>

#include "controls/dialog_hooks.h"
#include "diagram/scaling.h"
#include "gain_fixture.h"
#include "graphwin/graph_image.h"
#include "graphwin/grhilfe.h"
#include "graphwin/qkreis.h"
#include "graphwin/xmax_dlg.h"

// A graph window of the fixture's data, shown as the main window shows it, and the helpers its
// tests drive it with.
namespace graphwin_test {

// Answers every modal dialog by typing the next text (the last again once they run out) and OK, and
// keeps what each asked: the axis dialog's label, another dialog's title.
class Answers {
 public:
  explicit Answers(QStringList typed)
      : interception_([this, typed](QDialog& dialog) {
          const auto* label = dialog.findChild<QLabel*>("NamenLabel");
          asked_.append(label ? label->text() : dialog.windowTitle());
          auto* edit = dialog.findChild<QLineEdit*>();
          edit->selectAll();
          QTest::keyClicks(edit, typed.value(asked_.size() - 1, typed.last()));
          dialog.findChild<QPushButton*>("OKBtn")->click();
          return dialog.result();
        }) {}
  QStringList asked_;

 private:
  controls::ModalInterception interception_;
};

// mode: the main window's display mode, which chooses the S-parameters a window shows.
template <typename Window, graphwin::DisplayMode mode = graphwin::DisplayMode::Gain>
class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    diagram::CurrentDiagram() = {};
    inputs_.files = {{set_.get(), "/data/dut.s2p", true}};
    inputs_.mode = mode;
    window_ = std::make_unique<Window>([this] { return inputs_; }, dialogs_);
    window_->ShowFromMain();
  }
  template <typename T>
  T* Find(const char* name) {
    T* found = window_->template findChild<T*>(name);
    if (!found) throw std::runtime_error(std::string("no control ") + name);
    return found;
  }
  graphwin::TDiagramImage* Image() { return Find<graphwin::TDiagramImage>("Image"); }
  QPoint PixelOf(double x, double y) {
    const diagram::Diagram& d = Image()->Scale();
    return {diagram::XToPixel(d, x), diagram::YToPixel(d, y)};
  }
  const diagram::Diagram& State() { return diagram::CurrentDiagram(); }
  // Prints through the item into a PDF file and gives the file's first five bytes.
  QByteArray PrintedStart(const char* item = "Print1") {
    QTemporaryDir dir;
    controls::DialogInterception printer(nullptr, [&](controls::PrinterDialog, QPrinter& p) {
      p.setOutputFormat(QPrinter::PdfFormat);
      p.setOutputFileName(dir.filePath("page.pdf"));
      return true;
    });
    Find<QAction>(item)->trigger();
    QFile pdf(dir.filePath("page.pdf"));
    return pdf.open(QIODevice::ReadOnly) ? pdf.read(5) : QByteArray();
  }

  std::unique_ptr<numerics::TwoPortDataSet> set_ = MakeDataSet(5, 1e9, 1e9);
  graphwin::plots::GraphInputs inputs_;
  graphwin::TGRHilfeBox help_;
  graphwin::TXmaxDlg1 axis_;
  graphwin::TQcircle qCircle_;
  graphwin::GraphDialogs dialogs_{&help_, &axis_, &qCircle_};
  std::unique_ptr<Window> window_;
};

}  // namespace graphwin_test
