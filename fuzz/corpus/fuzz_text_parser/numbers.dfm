object A: TA
 a=-1 b=$FF c=1.5 d=1.5e10s e=15000c f=1d g=0.1w h=-Inf i=+NaNs j=$FFFFFFFFFFFFFFFF k=9999999999
end