object SettingsForm: TSettingsForm
  Left = 240
  Top = 160
  Caption = 'Settings'
  ClientHeight = 312
  ClientWidth = 480
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  KeyPreview = True
  OldCreateOrder = False
  PopupMenu = ViewMenu
  Position = poMainFormCenter
  OnClose = FormClose
  PixelsPerInch = 96
  TextHeight = 13
  object Inspector: TKTObjectInspector
    Left = 216
    Top = 16
    Width = 248
    Height = 240
    Anchors = [akLeft, akTop, akRight, akBottom]
    DisplayKinds = [tkInteger, tkChar, tkEnumeration, tkFloat, tkString, tkSet, tkClass, tkWChar, tkLString, tkWString, tkVariant, tkInterface, tkInt64]
    TabOrder = 0
    OnPropertyChanged = InspectorPropertyChanged
  end
  object PhoneEdit: TMaskEdit
    Left = 16
    Top = 16
    Width = 177
    Height = 21
    Hint = 'Telephone'
    EditMask = '!\(999\) 000-0000;1;_'
    MaxLength = 14
    ParentShowHint = False
    ShowHint = True
    TabOrder = 1
    Text = '(030) 123-4567'
  end
  object RowsGrid: TDrawGrid
    Left = 16
    Top = 56
    Width = 177
    Height = 137
    ColCount = 3
    DefaultColWidth = 54
    DefaultRowHeight = 21
    FixedColor = clBtnFace
    RowCount = 6
    TabOrder = 2
    OnDrawCell = RowsGridDrawCell
  end
  object LargeRadio: TRadioButton
    Left = 16
    Top = 208
    Width = 81
    Height = 17
    Caption = '&Large'
    TabOrder = 3
  end
  object SmallRadio: TRadioButton
    Left = 112
    Top = 208
    Width = 81
    Height = 17
    Caption = '&Small'
    Checked = True
    TabOrder = 4
    TabStop = True
  end
  object AskCheck: TCheckBox
    Left = 16
    Top = 240
    Width = 177
    Height = 17
    Caption = 'Ask &before closing'
    State = cbGrayed
    TabOrder = 5
  end
  object CloseButton: TButton
    Left = 389
    Top = 272
    Width = 75
    Height = 25
    Anchors = [akRight, akBottom]
    Cancel = True
    Caption = '&Close'
    Default = True
    ModalResult = 1
    TabOrder = 6
  end
  object ViewMenu: TPopupMenu
    Left = 232
    Top = 264
    object GroupsItem: TMenuItem
      Caption = '&Groups'
      Checked = True
      OnClick = GroupsItemClick
    end
    object SeparatorItem: TMenuItem
      Caption = '-'
    end
    object FontItem: TMenuItem
      Caption = '&Font...'
      ShortCut = 16454
      OnClick = FontItemClick
    end
  end
end
