object A: TA
 a=[]
 b=[x,
 y] c=[1, 2,]
end