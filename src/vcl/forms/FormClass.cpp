// What forms publish.
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/menus/MainMenu.h"

#include <limits>

namespace kt {

const TTypeInfo* ModalResultTypeInfo() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TModalResult"), otSLong, std::numeric_limits<qint32>::min(),
                                 std::numeric_limits<qint32>::max());
  return &info;
}

const TClassInfo* TCustomForm::Class() {
  static const TClassInfo info = TClassBuilder<TCustomForm>("TCustomForm").Done();
  return &info;
}

const TClassInfo* TForm::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TForm> builder("TForm");
    builder.Property<&TForm::GetActiveControl, &TForm::SetActiveControl>("ActiveControl");
    Publish::Action(builder);
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    builder.Property<&TForm::GetBorderIcons, &TForm::SetBorderIcons>("BorderIcons")
        .Default(TBorderIcons{biSystemMenu, biMinimize, biMaximize});
    builder.Property<&TForm::GetBorderStyle, &TForm::SetBorderStyle>("BorderStyle").Default(bsSizeable);
    Publish::Caption(builder);
    builder.Property<&TForm::GetClientHeight, &TForm::SetClientHeight>("ClientHeight");
    builder.Property<&TControl::GetClientWidth, &TControl::SetClientWidth>("ClientWidth");
    Publish::Color(builder);
    Publish::Constraints(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&TForm::IsKeyPreview, &TForm::SetKeyPreview>("KeyPreview").Default(false);
    builder.Property<&TForm::GetMenu, &TForm::SetMenu>("Menu");
    builder.Property<&TForm::IsOldCreateOrder, &TForm::SetOldCreateOrder>("OldCreateOrder");
    Publish::ParentBiDiMode(builder);
    Publish::ParentFont(builder, false);
    builder.Property<&TForm::GetPixelsPerInch, &TForm::SetPixelsPerInch>("PixelsPerInch");
    Publish::PopupMenu(builder);
    builder.Property<&TForm::GetPosition, &TForm::SetPosition>("Position").Default(poDefaultPosOnly);
    Publish::ShowHint(builder);
    builder.Property<&TForm::GetTextHeight, &TForm::SetTextHeight>("TextHeight");
    builder.Property<&TControl::IsVisible, &TControl::SetVisible>("Visible").Default(false).Stored(
        &TControl::IsVisibleStored);
    builder.Property<&TForm::GetWindowState, &TForm::SetWindowState>("WindowState").Default(wsNormal);
    builder.Property<&TForm::OnActivate>("OnActivate");
    Publish::MouseEvents(builder);
    Publish::DropEvents(builder);
    Publish::WheelEvents(builder);
    builder.Property<&TForm::OnClose>("OnClose");
    builder.Property<&TForm::OnCloseQuery>("OnCloseQuery");
    builder.Property<&TForm::OnCreate>("OnCreate");
    builder.Property<&TForm::OnDeactivate>("OnDeactivate");
    builder.Property<&TForm::OnDestroy>("OnDestroy");
    builder.Property<&TForm::OnHide>("OnHide");
    Publish::KeyEvents(builder);
    builder.Property<&TForm::OnPaint>("OnPaint");
    builder.Property<&TControl::OnResize>("OnResize");
    builder.Property<&TForm::OnShow>("OnShow");
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
