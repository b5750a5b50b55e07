#include "kt/ktcommon/HintWindow.h"

#include "kt/ktcommon/HintLabel.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QToolTip>

#include <algorithm>

namespace kt {

namespace {

/// Around the text, the frame included.
constexpr QMargins kMargins{3, 1, 3, 1};

}  // namespace

const TClassInfo* TKTHintWindow::Class() {
  static const TClassInfo info = TClassBuilder<TKTHintWindow>("TKTHintWindow").Creatable().Done();
  return &info;
}

TKTHintWindow::TKTHintWindow(TComponent* owner) : TComponent(owner) {}

TKTHintWindow::~TKTHintWindow() = default;

void TKTHintWindow::Construct() {
  TComponent::Construct();
  FFont = Make<TFont>();
}

void TKTHintWindow::Destruct() {
  FTimer.reset();
  if (FLabel) FLabel->Retire();
  TComponent::Destruct();
}

bool TKTHintWindow::IsShown() const { return FLabel && FLabel->IsShown(); }

bool TKTHintWindow::IsUnderPointer() const { return FLabel && FLabel->IsBetween(QCursor::pos()); }

void TKTHintWindow::HideHint() {
  FTimer.reset();
  if (FLabel) FLabel->Hide();
}

void TKTHintWindow::ActivateHint(QPoint screenPoint, const QString& text) {
  FPoint = screenPoint;
  FText = text;
  if (FInterval <= 0) return ShowText();
  FTimer = std::make_unique<QTimer>();
  FTimer->setSingleShot(true);
  QObject::connect(FTimer.get(), &QTimer::timeout, FTimer.get(), [this] { GuardedCall([this] { ShowText(); }); });
  FTimer->start(FInterval);
}

THintLabel& TKTHintWindow::Label() {
  if (!FLabel) {
    auto* owner = dynamic_cast<TWinControl*>(GetOwner());
    FLabel = new THintLabel(owner && owner->HandleAllocated() ? owner->GetHandle() : nullptr);
  }
  return *FLabel;
}

void TKTHintWindow::ShowText() {
  THintLabel& label = Label();
  const QScreen* screen = QGuiApplication::screenAt(FPoint);
  const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
  label.setPalette(QToolTip::palette());
  label.setFont(QtFont(*FFont));
  label.setContentsMargins(kMargins - QMargins(1, 1, 1, 1));
  label.setWordWrap(false);
  label.setText(QString(FText).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  QSize size = label.sizeHint();
  if (size.width() > area.width()) {
    label.setWordWrap(true);
    size = {area.width(), label.heightForWidth(area.width())};
  }
  const int x = std::max(std::min(FPoint.x(), area.left() + area.width() - size.width()), area.left());
  const int y = std::max(std::min(FPoint.y(), area.top() + area.height() - size.height()), area.top());
  label.setGeometry(QRect(QPoint(x, y), size));
  label.Show();
}

}  // namespace kt
