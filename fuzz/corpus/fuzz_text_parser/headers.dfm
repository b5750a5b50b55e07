INHERITED a: TA [3]
 inline b: TB
  end
  object TC
 end
 object D:
 end
 object :
 end
end