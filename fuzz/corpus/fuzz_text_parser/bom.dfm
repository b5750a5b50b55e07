object A: TA
 a=1
end