! Version 2.0 two-port with unequal references and a noise block
[Version] 2.0
# MHz S RI R 50
[Number of Ports] 2
[Two-Port Data Order] 12_21
[Number of Frequencies] 3
[Number of Noise Frequencies] 1
[Reference] 50
25
[Begin Information]
any text [Whatever]
[End Information]
[Network Data]
100 0.5 -0.2 0.01 0.02
    3.1 1.2 0.4 -0.3
200 0.45 -0.3 0.02 0.03 2.9 1.5 0.35 -0.35 ! trailing comment
300 0.4 -0.35 0.03 0.04 2.7 1.7 0.3 -0.4
[Noise Data]
150 1.2 0.4 30 0.3
[End]
