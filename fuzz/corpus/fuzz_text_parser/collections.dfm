object LedgerForm: TLedgerForm
  Left = 0
  object Grid: TLedgerGrid
    Columns = <
      item
        FieldName = 'NAME'
        Title.Caption = 'Name'
        Width = 180
      end
      item [3]
        FieldName = 'AMOUNT'
        PickList.Strings = (
          'net'
          'gross')
        Bands = <
          item
            Title = 'inner'
            Marks = <>
          end
          item
            Limits = (
              0
              -40
              100.500000000000000000
              lkOpen
              (
                1
                2)
              ())
          end>
        Visible = True
      end>
    Footers = <>
  end
  object MissingThing: TUnheardOfComponent
    Mode = umSomething
    Options = [uoOne, uoTwo, uoThree]
    Data = {}
    Seal = {0102030405060708090A0B0C0D0E0F}
    Nothing = Null
  end
end
