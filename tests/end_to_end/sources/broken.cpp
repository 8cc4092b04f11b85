int x = ;
