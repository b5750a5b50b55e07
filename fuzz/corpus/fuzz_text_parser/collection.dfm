object A: TA
 a=<item [1] x=1 end item object=2 y=<item end> end>
end