object OrderForm: TOrderForm
  Left = 120
  Top = 80
  ActiveControl = CustomerEdit
  Caption = 'Orders && Deliveries'
  ClientHeight = 420
  ClientWidth = 640
  Color = 15790320
  Font.Charset = DEFAULT_CHARSET
  Font.Height = -12
  Font.Name = 'DejaVu Sans'
  Font.Style = [fsBold, fsItalic]
  Position = poScreenCenter
  OnClose = FormClose
  OnCreate = FormCreate
  DesignSize = (
    640
    420)
  object TopPanel: TPanel
    Left = 0
    Top = 0
    Width = 640
    Height = 56
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 0
    object CustomerLabel: TLabel
      Left = 12
      Top = 20
      Width = 52
      Height = 16
      Caption = '&Customer'
      FocusControl = CustomerEdit
    end
    object CustomerEdit: TEdit
      Left = 80
      Top = 16
      Width = 240
      Height = 24
      Anchors = [akLeft, akTop, akRight]
      Constraints.MinWidth = 120
      TabOrder = 0
      OnKeyPress = Filter.CustomerKeyPress
    end
    object TImage
      Left = 600
      Top = 12
      Width = 2
      Height = 2
      Picture.Data = {
        07544269746D617046000000424D460000000000000036000000280000000200
        0000020000000100180000000000100000000000000000000000000000000000
        00000000FFFFFF0000FFFFFFFF0000000000}
    end
  end
  object NotesMemo: TMemo
    Left = 0
    Top = 56
    Width = 640
    Height = 364
    Align = alClient
    Anchors = []
    Lines.Strings = (
      'Deliver to the back door.'
      ''
      
        'The driver should ring twice and wait a while; the bell is hard ' +
        'to hear in the yard.'
      'Don'#39't leave parcels outside.')
    TabOrder = 1
    Visible = False
  end
end
