object A: TA
 a={00 01
 ff} b={}
end