object ContactForm: TContactForm
  Left = 192
  Top = 107
  BorderStyle = bsDialog
  Caption = 'Contact'
  ClientHeight = 264
  ClientWidth = 392
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  OldCreateOrder = False
  Position = poScreenCenter
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 13
  object CitiesList: TListBox
    Left = 16
    Top = 16
    Width = 145
    Height = 185
    ItemHeight = 13
    Items.Strings = (
      'Amsterdam'
      'Berlin'
      'Copenhagen'
      'Dublin'
      'Edinburgh'
      'Florence'
      'Geneva')
    PopupMenu = ListMenu
    TabOrder = 0
    OnClick = CitiesListClick
  end
  object MailRadio: TRadioButton
    Left = 184
    Top = 16
    Width = 193
    Height = 17
    Caption = 'Answer by &mail'
    Checked = True
    TabOrder = 1
    TabStop = True
  end
  object PhoneRadio: TRadioButton
    Left = 184
    Top = 40
    Width = 193
    Height = 17
    Caption = 'Answer by &telephone'
    TabOrder = 2
  end
  object NewsCheck: TCheckBox
    Left = 184
    Top = 80
    Width = 193
    Height = 17
    Caption = 'Send me the &news'
    Checked = True
    State = cbChecked
    TabOrder = 3
  end
  object UrgentCheck: TCheckBox
    Left = 184
    Top = 104
    Width = 193
    Height = 17
    Caption = '&Urgent'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clRed
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
    TabOrder = 4
  end
  object OkButton: TButton
    Left = 208
    Top = 224
    Width = 75
    Height = 25
    Action = SendAction
    Default = True
    TabOrder = 5
  end
  object CancelButton: TButton
    Left = 296
    Top = 224
    Width = 75
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 6
  end
  object Actions: TActionList
    Left = 200
    Top = 144
    object SendAction: TAction
      Category = 'Contact'
      Caption = '&Send'
      ShortCut = 16467
      OnExecute = SendActionExecute
    end
  end
  object ListMenu: TPopupMenu
    Left = 288
    Top = 144
    object AddItem: TMenuItem
      Caption = '&Add a city...'
      ShortCut = 45
    end
    object RemoveItem: TMenuItem
      Caption = '&Remove'
      ShortCut = 46
    end
  end
end
