--  zex -ada binomial.adb
--
--  Binomial coefficients. "binomial" can be called from C by its name; "zexFunction" prints one row.

with Interfaces.C;

package Binomial is

   function Coefficient (N, K : Interfaces.C.int) return Interfaces.C.long;
   pragma Export (C, Coefficient, "binomial");

   procedure Print_Row;
   pragma Export (C, Print_Row, "zexFunction");

end Binomial;
