object PreferencesForm: TPreferencesForm
  Left = 240
  Top = 160
  ActiveControl = NameEdit
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Preferences'
  ClientHeight = 352
  ClientWidth = 432
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Sans Serif'
  Font.Style = []
  OldCreateOrder = False
  Position = poScreenCenter
  OnCloseQuery = FormCloseQuery
  OnShow = FormShow
  PixelsPerInch = 96
  TextHeight = 14
  object Pages: TPageControl
    Left = 8
    Top = 8
    Width = 416
    Height = 296
    ActivePage = GeneralSheet
    Anchors = [akLeft, akTop, akRight, akBottom]
    TabOrder = 0
    object GeneralSheet: TTabSheet
      Caption = 'General'
      object NameLabel: TLabel
        Left = 16
        Top = 20
        Width = 33
        Height = 14
        Caption = '&Name:'
        FocusControl = NameEdit
      end
      object PhoneLabel: TLabel
        Left = 16
        Top = 52
        Width = 36
        Height = 14
        Caption = '&Phone:'
        FocusControl = PhoneEdit
      end
      object LanguageLabel: TLabel
        Left = 16
        Top = 84
        Width = 56
        Height = 14
        Caption = '&Language:'
        FocusControl = LanguageBox
      end
      object NameEdit: TEdit
        Left = 96
        Top = 16
        Width = 296
        Height = 22
        Anchors = [akLeft, akTop, akRight]
        MaxLength = 60
        TabOrder = 0
        Text = 'Desk lamp'
        OnChange = NameEditChange
      end
      object PhoneEdit: TMaskEdit
        Left = 96
        Top = 48
        Width = 136
        Height = 22
        EditMask = '!\(999\)000-0000;1;_'
        MaxLength = 13
        TabOrder = 1
        Text = '(   )   -    '
      end
      object LanguageBox: TComboBox
        Left = 96
        Top = 80
        Width = 136
        Height = 22
        Style = csDropDownList
        ItemIndex = 1
        TabOrder = 2
        Text = 'English'
        Items.Strings = (
          'Deutsch'
          'English'
          'Fran'#231'ais'
          #1056#1091#1089#1089#1082#1080#1081)
      end
      object StartGroup: TGroupBox
        Left = 16
        Top = 120
        Width = 184
        Height = 121
        Caption = 'On start'
        TabOrder = 3
        object RestoreButton: TRadioButton
          Left = 16
          Top = 24
          Width = 152
          Height = 20
          Caption = 'Open what was open'
          Checked = True
          TabOrder = 0
          TabStop = True
        end
        object EmptyButton: TRadioButton
          Left = 16
          Top = 52
          Width = 152
          Height = 20
          Caption = 'Begin with nothing'
          TabOrder = 1
        end
        object AskButton: TRadioButton
          Left = 16
          Top = 80
          Width = 152
          Height = 20
          Caption = 'Ask'
          TabOrder = 2
        end
      end
      object SavingGroup: TGroupBox
        Left = 216
        Top = 120
        Width = 176
        Height = 121
        Anchors = [akLeft, akTop, akRight]
        Caption = 'Saving'
        TabOrder = 4
        object AutoSaveBox: TCheckBox
          Left = 16
          Top = 24
          Width = 144
          Height = 20
          Caption = 'Every few minutes'
          Checked = True
          State = cbChecked
          TabOrder = 0
          OnClick = AutoSaveBoxClick
        end
        object BackupBox: TCheckBox
          Left = 16
          Top = 52
          Width = 144
          Height = 20
          AllowGrayed = True
          Caption = 'Keep the old file'
          State = cbGrayed
          TabOrder = 1
        end
      end
    end
    object LightSheet: TTabSheet
      Caption = 'Light'
      ImageIndex = 1
      object BrightnessLabel: TLabel
        Left = 16
        Top = 20
        Width = 65
        Height = 14
        Caption = '&Brightness:'
        FocusControl = BrightnessBar
      end
      object BrightnessBar: TTrackBar
        Left = 96
        Top = 12
        Width = 296
        Height = 33
        Anchors = [akLeft, akTop, akRight]
        Max = 100
        Frequency = 10
        Position = 60
        TabOrder = 0
        OnChange = BrightnessBarChange
      end
      object UseBar: TProgressBar
        Left = 96
        Top = 60
        Width = 296
        Height = 17
        Anchors = [akLeft, akTop, akRight]
        Position = 60
        TabOrder = 1
      end
      object WarmthBar: TScrollBar
        Left = 96
        Top = 92
        Width = 296
        Height = 17
        Anchors = [akLeft, akTop, akRight]
        Max = 6500
        Min = 2700
        PageSize = 0
        Position = 4000
        SmallChange = 50
        TabOrder = 2
      end
    end
  end
  object OKButton: TButton
    Left = 264
    Top = 316
    Width = 75
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 1
    OnClick = OKButtonClick
  end
  object CancelButton: TButton
    Left = 348
    Top = 316
    Width = 75
    Height = 25
    Anchors = [akRight, akBottom]
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 2
  end
end
