#include "graph_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "graph_image.h"
#include "diagram/pages/graph_data.h"
#include "output_pages.h"

namespace mainwin {

TGraphPage::TGraphPage(diagram::pages::OutputPage page, const Names& names, QWidget* parent)
    : QWidget(parent), page_(page) {
  image_ = new TGraphImage(page, this);
  image_->setObjectName(names.image);
  comment_ = MakeCommentEdit(this, names.comment, QStringLiteral("Graphic"));
  auto* top = new QHBoxLayout;
  top->addWidget(comment_, 1);
  if (names.legend) {
    legend_ = new QLabel(QString::fromUtf8(names.legendText), this);
    legend_->setObjectName(names.legend);
    legend_->setStyleSheet(QStringLiteral("color: rgb(0, 128, 0)"));
    top->addWidget(legend_);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->addLayout(top);
  layout->addWidget(image_, 1);
}

void TGraphPage::Redraw(const diagram::pages::PageScene& scene) {
  if (legend_) legend_->setVisible(diagram::pages::BothSeriesShown(page_, scene.choice));
  image_->Draw(scene);
}

QString TGraphPage::LegendText() const { return legend_ && !legend_->isHidden() ? legend_->text() : QString(); }

}  // namespace mainwin
