with Ada.Text_IO;

package body Binomial is

   use Interfaces.C;

   subtype Order is int range 0 .. 30;

   --  Filled when the library is loaded.
   Triangle : array (Order, Order) of long := (others => (others => 0));

   function Coefficient (N, K : int) return long is
   begin
      if N not in Order or else K not in Order then
         return 0;
      end if;
      return Triangle (N, K);
   end Coefficient;

   procedure Print_Row is
   begin
      for K in int range 0 .. 6 loop
         Ada.Text_IO.Put (long'Image (Coefficient (6, K)));
      end loop;
      Ada.Text_IO.New_Line;
   end Print_Row;

begin
   for N in Order loop
      Triangle (N, 0) := 1;
      for K in 1 .. N loop
         Triangle (N, K) := Triangle (N - 1, K - 1) + Triangle (N - 1, K);
      end loop;
   end loop;
end Binomial;
