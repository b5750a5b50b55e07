inherited ReportForm: TReportForm
  Caption = 'Monthly report'
  PixelsPerInch = 96
  inherited ButtonPanel: TPanel
    Top = 300
    ExplicitTop = 300
    inherited CloseButton: TButton [0]
      Caption = 'Done'
    end
    object PrintButton: TButton [1]
      Left = 8
      Top = 8
      Caption = 'Print...'
      OnClick = PrintButtonClick
    end
  end
  inline AddressFrame: TAddressFrame
    Left = 16
    Top = 16
    Width = 320
    TabOrder = 1
    TabStop = True
    inherited StreetEdit: TEdit
      Width = 200
      PopupMenu = nil
    end
  end
end
