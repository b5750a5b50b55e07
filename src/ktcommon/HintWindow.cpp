#include "kt/ktcommon/HintWindow.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QGuiApplication>
#include <QLabel>
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
  delete FLabel;
  TComponent::Destruct();
}

bool TKTHintWindow::IsShown() const { return FLabel && FLabel->isVisible(); }

void TKTHintWindow::HideHint() {
  FTimer.reset();
  if (FLabel) FLabel->hide();
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

QLabel& TKTHintWindow::Label() {
  if (!FLabel) {
    auto* owner = dynamic_cast<TWinControl*>(GetOwner());
    FLabel = new QLabel(owner && owner->HandleAllocated() ? owner->GetHandle() : nullptr,
                        Qt::ToolTip | Qt::BypassGraphicsProxyWidget);
    FLabel->setAttribute(Qt::WA_ShowWithoutActivating);
    FLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    FLabel->setFocusPolicy(Qt::NoFocus);
    FLabel->setTextFormat(Qt::PlainText);
    FLabel->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    FLabel->setFrameStyle(QFrame::Box | QFrame::Plain);
    FLabel->setBackgroundRole(QPalette::ToolTipBase);
    FLabel->setForegroundRole(QPalette::ToolTipText);
    FLabel->setAutoFillBackground(true);
  }
  return *FLabel;
}

void TKTHintWindow::ShowText() {
  QLabel& label = Label();
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
  label.show();
  label.raise();
}

}  // namespace kt
