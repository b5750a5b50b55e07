object Strings: TStrings
  Empty = ''
  Quote = 'It'#39's'
  Control = 'one'#13#10'two'#9'three'
  Latin = 'Gr'#252#223'e'
  Greek = #915#949#953#940
  Beyond = 'a '#55357#56832' face'
  Lone = #55357
  Exact = 'sixty-four characters exactly: no line break is needed for them.'
  Long = 
    'A text that is longer than one line may be is cut into pieces wh' +
    'ich the reader puts together again; an apostrophe'#39's number count' +
    's as one character.'
end
