// What forms publish.
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/menus/MenuItem.h"

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
    using T = TForm;
    TClassBuilder<T> builder("TForm");
    builder.Property<&TForm::GetActiveControl, &TForm::SetActiveControl>("ActiveControl");
    Publish::Action(builder);
    Publish::Align(builder);
    builder.Property<&T::IsAlphaBlend, &T::SetAlphaBlend>("AlphaBlend").Default(false);
    builder.Property<&T::GetAlphaBlendValue, &T::SetAlphaBlendValue>("AlphaBlendValue").Default(255);
    Publish::Anchors(builder);
    builder.Property<&T::IsAutoScroll, &T::SetAutoScroll>("AutoScroll").Stored(&T::IsAutoScrollStored);
    Publish::BiDiMode(builder);
    builder.Property<&TForm::GetBorderIcons, &TForm::SetBorderIcons>("BorderIcons")
        .Default(TBorderIcons{biSystemMenu, biMinimize, biMaximize});
    builder.Property<&TForm::GetBorderStyle, &TForm::SetBorderStyle>("BorderStyle").Default(bsSizeable);
    builder.Property<&T::GetBorderWidth, &T::SetBorderWidth>("BorderWidth", &BorderWidthTypeInfo).Default(0);
    Publish::Caption(builder);
    builder.Property<&TForm::GetClientHeight, &TForm::SetClientHeight>("ClientHeight");
    builder.Property<&TControl::GetClientWidth, &TControl::SetClientWidth>("ClientWidth");
    Publish::Color(builder);
    Publish::Constraints(builder);
    builder.Property<&TWinControl::IsCtl3D, &TWinControl::SetCtl3D>("Ctl3D").Default(true);
    builder.Property<&T::GetDefaultMonitor, &T::SetDefaultMonitor>("DefaultMonitor").Default(dmActiveForm);
    builder.Property<&T::IsDockSite, &T::SetDockSite>("DockSite").Default(false);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&T::GetFormStyle, &T::SetFormStyle>("FormStyle").Default(fsNormal);
    builder.Property<&T::GetHelpFile, &T::SetHelpFile>("HelpFile");
    builder.Property<&T::GetHorzScrollBar, &T::SetHorzScrollBar>("HorzScrollBar");
    builder.Property<&T::GetIcon, &T::SetIcon>("Icon").Stored(&T::IsIconStored);
    builder.Property<&TForm::IsKeyPreview, &TForm::SetKeyPreview>("KeyPreview").Default(false);
    builder.Property<&TForm::GetMenu, &TForm::SetMenu>("Menu");
    builder.Property<&TForm::IsOldCreateOrder, &TForm::SetOldCreateOrder>("OldCreateOrder");
    builder.Property<&T::GetObjectMenuItem, &T::SetObjectMenuItem>("ObjectMenuItem");
    Publish::ParentBiDiMode(builder);
    Publish::ParentFont(builder, false);
    builder.Property<&TForm::GetPixelsPerInch, &TForm::SetPixelsPerInch>("PixelsPerInch");
    Publish::PopupMenu(builder);
    builder.Property<&TForm::GetPosition, &TForm::SetPosition>("Position").Default(poDefaultPosOnly);
    builder.Property<&T::GetPrintScale, &T::SetPrintScale>("PrintScale").Default(poProportional);
    builder.Property<&T::IsScaled, &T::SetScaled>("Scaled").Default(true);
    builder.Property<&T::IsScreenSnap, &T::SetScreenSnap>("ScreenSnap").Default(false);
    Publish::ShowHint(builder);
    builder.Property<&T::GetSnapBuffer, &T::SetSnapBuffer>("SnapBuffer").Default(10);
    builder.Property<&TForm::GetTextHeight, &TForm::SetTextHeight>("TextHeight");
    builder.Property<&T::IsTransparentColor, &T::SetTransparentColor>("TransparentColor").Default(false);
    builder.Property<&T::GetTransparentColorValue, &T::SetTransparentColorValue>("TransparentColorValue")
        .Default(clBlack);
    builder.Property<&T::IsUseDockManager, &T::SetUseDockManager>("UseDockManager").Default(false);
    builder.Property<&T::GetVertScrollBar, &T::SetVertScrollBar>("VertScrollBar");
    builder.Property<&TControl::IsVisible, &TControl::SetVisible>("Visible").Default(false).Stored(
        &TControl::IsVisibleStored);
    builder.Property<&T::GetWindowMenu, &T::SetWindowMenu>("WindowMenu");
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
    Publish::SizeEvents(builder);
    builder.Property<&TForm::OnShortCut>("OnShortCut");
    builder.Property<&TForm::OnShow>("OnShow");
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
