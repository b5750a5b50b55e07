object NotepadForm: TNotepadForm
  Left = 200
  Top = 120
  Caption = 'Notepad'
  ClientHeight = 380
  ClientWidth = 560
  Color = clBtnFace
  Constraints.MinHeight = 200
  Constraints.MinWidth = 320
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Sans Serif'
  Font.Style = []
  KeyPreview = True
  Menu = MainMenu
  OldCreateOrder = False
  OnClose = FormClose
  PixelsPerInch = 96
  TextHeight = 14
  object Memo: TMemo
    Left = 144
    Top = 0
    Width = 416
    Height = 361
    Align = alClient
    Lines.Strings = (
      'Things to do:'
      ''
      '- water the plants'
      '- write to Ren'#233'e'
      '- a lamp for the desk')
    PopupMenu = EditMenu
    ScrollBars = ssVertical
    TabOrder = 1
    OnChange = MemoChange
  end
  object NotesList: TListBox
    Left = 0
    Top = 0
    Width = 144
    Height = 361
    Align = alLeft
    ItemHeight = 14
    Items.Strings = (
      'Things to do'
      'Books'
      'Songs')
    TabOrder = 0
    OnClick = NotesListClick
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 361
    Width = 560
    Height = 19
    Panels = <
      item
        Text = 'Line 1'
        Width = 90
      end
      item
        Alignment = taCenter
        Text = 'Insert'
        Width = 70
      end
      item
        Text = 'notes.txt'
        Width = 50
      end>
  end
  object MainMenu: TMainMenu
    Left = 176
    Top = 160
    object FileItem: TMenuItem
      Caption = '&File'
      object OpenItem: TMenuItem
        Action = OpenAction
      end
      object SaveItem: TMenuItem
        Action = SaveAction
      end
      object FileLine: TMenuItem
        Caption = '-'
      end
      object ExitItem: TMenuItem
        Caption = 'E&xit'
        OnClick = ExitItemClick
      end
    end
    object ViewItem: TMenuItem
      Caption = '&View'
      object WrapItem: TMenuItem
        AutoCheck = True
        Caption = '&Wrap lines'
        Checked = True
        OnClick = WrapItemClick
      end
      object FontItem: TMenuItem
        Caption = '&Font...'
        OnClick = FontItemClick
      end
      object PaperItem: TMenuItem
        Caption = '&Paper...'
        OnClick = PaperItemClick
      end
    end
  end
  object EditMenu: TPopupMenu
    Left = 248
    Top = 160
    object CutItem: TMenuItem
      Caption = 'Cu&t'
      ShortCut = 16472
      OnClick = CutItemClick
    end
    object CopyItem: TMenuItem
      Caption = '&Copy'
      ShortCut = 16451
      OnClick = CopyItemClick
    end
    object PasteItem: TMenuItem
      Caption = '&Paste'
      ShortCut = 16470
      OnClick = PasteItemClick
    end
  end
  object Actions: TActionList
    Left = 320
    Top = 160
    object OpenAction: TAction
      Category = 'File'
      Caption = '&Open...'
      Hint = 'Opens another file'
      ShortCut = 16463
      OnExecute = OpenActionExecute
    end
    object SaveAction: TAction
      Category = 'File'
      Caption = '&Save'
      Hint = 'Saves the notes'
      ShortCut = 16467
      OnExecute = SaveActionExecute
      OnUpdate = SaveActionUpdate
    end
  end
  object OpenDialog: TOpenDialog
    DefaultExt = 'txt'
    Filter = 'Texts|*.txt|All files|*.*'
    Options = [ofHideReadOnly, ofFileMustExist, ofEnableSizing]
    Title = 'Open notes'
    Left = 176
    Top = 232
  end
  object SaveDialog: TSaveDialog
    DefaultExt = 'txt'
    Filter = 'Texts|*.txt|All files|*.*'
    Options = [ofOverwritePrompt, ofHideReadOnly, ofEnableSizing]
    Left = 248
    Top = 232
  end
  object FontDialog: TFontDialog
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -12
    Font.Name = 'Sans Serif'
    Font.Style = []
    Left = 320
    Top = 232
  end
  object ColorDialog: TColorDialog
    Color = clCream
    CustomColors.Strings = (
      'ColorA=F0FBFF'
      'ColorB=C0DCC0')
    Left = 392
    Top = 232
  end
  object SaveTimer: TTimer
    Enabled = False
    Interval = 60000
    OnTimer = SaveTimerTimer
    Left = 392
    Top = 160
  end
  object Images: TImageList
    Left = 464
    Top = 160
  end
end
