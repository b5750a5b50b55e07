object A: TA
 a='x
end