object A: TA
  X = 1
end
