object A: TA
 a='送'
end